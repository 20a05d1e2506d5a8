#pragma once

#include "cli/Arguments.h"
#include "model/MainViewModel.h"

namespace ardeo
{

/// How a command ended: what to print where, and the program's exit status.
struct Outcome {
    int status = 0;
    QByteArray output;
    /// What goes to standard error, without the last line break.
    QString error;
    /// Whether something was changed, so that the command has succeeded even if nobody can read its output.
    bool changed = false;
    /// What the command has worked with; null where it has not begun. To clear it away can take long, which a
    /// program that ends anyway need not wait for.
    std::shared_ptr<MainViewModel> model;
};

/// Who gets what a command has to say before it ends.
struct Listeners {
    /// Notes for the user, as one line each.
    std::function<void(const QString&)> tell;
    /// Output, whole lines of it; false when it cannot be written.
    std::function<bool(const QByteArray&)> print;
};

/// Runs a command on the platform and returns when it has ended.
Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour, const Listeners& listeners);

} // namespace ardeo
