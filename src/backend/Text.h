#pragma once

#include <QString>

namespace ardeo
{

/// A text as a person reads it: two texts are equal when they are canonically equivalent under Unicode, so a
/// letter with an accent equals the letter followed by its combining accent. Case matters. What was put in
/// comes out unchanged. Every record keeps its texts in this type, so that nobody can forget the rule.
class Text
{
public:
    Text() = default;
    Text(const QString& string) : m_string(string) {}
    Text(QString&& string) : m_string(std::move(string)) {}

    const QString& string() const { return m_string; }
    operator const QString&() const { return m_string; }
    bool isEmpty() const { return m_string.isEmpty(); }

    friend bool operator==(const Text& a, const Text& b);
    friend size_t qHash(const Text& text, size_t seed);

private:
    QString m_string;
};

size_t qHash(const Text& text, size_t seed = 0);

/// Orders texts by Unicode scalar values after canonical composition, independent of any locale; true when a
/// comes first.
bool comesBefore(const Text& a, const Text& b);

} // namespace ardeo
