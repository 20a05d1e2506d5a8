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

/// Runs a command on the platform and returns when it has ended.
/// Notes on the way are given to tell, as one line each.
Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour,
                   const std::function<void(const QString&)>& tell);

} // namespace ardeo
