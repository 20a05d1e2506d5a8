#include "platform/PendingServices.h"

#include "platform/ServiceChanges.h"

namespace ardeo
{

PendingProtocol::PendingProtocol(std::function<std::optional<QVariant>()> saved, Differences differences,
                                 std::shared_ptr<std::optional<Dictionary>> pending,
                                 std::function<void()> beforeChange)
    : m_saved(std::move(saved))
    , m_differences(differences)
    , m_pending(std::move(pending))
    , m_beforeChange(std::move(beforeChange))
{
}

std::optional<QVariant> PendingProtocol::configuration() const
{
    const auto saved = m_saved();
    return *m_pending ? changed(saved.value_or(QVariant()).toMap(), **m_pending) : saved;
}

bool PendingProtocol::setConfiguration(const Dictionary& configuration)
{
    return changeConfiguration(m_differences(m_saved().value_or(QVariant()).toMap(), configuration));
}

bool PendingProtocol::changeConfiguration(const Dictionary& changes)
{
    m_beforeChange();
    *m_pending = changes;
    return true;
}

} // namespace ardeo
