#pragma once

#include <QProperty>

namespace ardeo
{

/// A property that keeps every value it is given, and tells its observers only of one that differs from the
/// last. (A plain property drops a value that equals the last one, even if the two are spelled differently;
/// one whose type has no equality tells of every assignment, and so does this.)
template <typename Value>
class Observed final : public QProperty<Value>
{
public:
    using QProperty<Value>::QProperty;

    Observed& operator=(const Value& value)
    {
        setValue(value);
        return *this;
    }

    void setValue(const Value& value)
    {
        if constexpr (requires(const Value& a, const Value& b) { a == b; }) {
            if (this->valueBypassingBindings() == value) {
                this->setValueBypassingBindings(value);
                return;
            }
        }
        QProperty<Value>::setValue(value);
    }
};

} // namespace ardeo
