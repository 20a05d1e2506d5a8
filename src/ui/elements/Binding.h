#pragma once

#include <QObject>
#include <QProperty>

#include <type_traits>
#include <utility>

namespace ardeo
{

namespace detail
{

template <typename Value>
class Binding final : public QObject
{
public:
    template <typename Read, typename Show>
    Binding(QObject* owner, Read read, Show show) : QObject(owner)
    {
        m_value.setBinding(std::move(read));
        m_notifier = m_value.addNotifier([this, show] { show(m_value.value()); });
        show(m_value.value());
    }

private:
    QProperty<Value> m_value;
    QPropertyNotifier m_notifier;
};

} // namespace detail

/// Shows what read gives, now and whenever a property that read has read changes, for as long as owner lives.
/// Only what read reads is followed; show runs outside of that, in the middle of the assignment that changed
/// the property, and must not write to one.
template <typename Read, typename Show>
void bind(QObject* owner, Read read, Show show)
{
    new detail::Binding<std::invoke_result_t<Read>>(owner, std::move(read), std::move(show));
}

} // namespace ardeo
