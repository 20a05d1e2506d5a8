#include "backend/Text.h"

#include <QList>

#include <algorithm>

namespace ardeo
{

namespace
{

QString composed(const QString& string)
{
    return string.normalized(QString::NormalizationForm_C);
}

} // namespace

bool operator==(const Text& a, const Text& b)
{
    return a.m_string == b.m_string || composed(a.m_string) == composed(b.m_string);
}

size_t qHash(const Text& text, size_t seed)
{
    return qHash(composed(text.m_string), seed);
}

bool comesBefore(const Text& a, const Text& b)
{
    // By scalar values: UTF-16 units would put characters beyond the first 65,536 before some of those
    // within.
    return std::ranges::lexicographical_compare(composed(a.string()).toUcs4(), composed(b.string()).toUcs4());
}

} // namespace ardeo
