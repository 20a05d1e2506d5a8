#pragma once

#include "cli/Arguments.h"
#include "platform/Platform.h"

namespace ardeo
{

/// How a command ended: what to print where, and the program's exit status.
struct Outcome {
    int status = 0;
    QByteArray output;
    /// One line for standard error, without the line break.
    QString error;
};

/// Runs a command on the platform and returns when it has ended.
Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour);

} // namespace ardeo
