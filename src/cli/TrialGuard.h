#pragma once

#include "model/MainViewModel.h"

#include <memory>

namespace ardeo
{

/// Makes two processes of one, because whoever changes what they are connected by may be gone a moment later:
/// the one that was started stays with the terminal; the other one, which is returned to, makes the change,
/// and takes it back when nobody confirms it, whatever becomes of the first.
class TrialGuard
{
public:
    /// Returns in the second process alone; before anything has been begun that two could not share. The
    /// first one ends as the second one does, or when the trial does.
    TrialGuard();
    TrialGuard(const TrialGuard&) = delete;
    TrialGuard& operator=(const TrialGuard&) = delete;

    /// Tells the first process that the change has been made, lets go of the terminal, and returns when the
    /// trial is over.
    void watch(const std::shared_ptr<MainViewModel>& model) const;

private:
    /// What the first process says, and what it is told.
    int m_orders = -1;
    int m_reports = -1;
};

} // namespace ardeo
