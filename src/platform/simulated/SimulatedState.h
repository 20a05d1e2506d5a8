#pragma once

#include "platform/simulated/SimulatedMachine.h"

#include <utility>

namespace ardeo
{

/// The live state of the simulated machine, as it was when the handle was made.
class SimulatedState final : public DynamicStore
{
public:
    explicit SimulatedState(Json machine) : m_machine(std::move(machine)) {}
    std::optional<QVariant> value(const QString& key) override;
    std::optional<QString> computerName() override { return textMember(m_machine, "computerName"); }

private:
    Json m_machine;
};

} // namespace ardeo
