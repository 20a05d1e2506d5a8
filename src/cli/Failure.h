#pragma once

#include "cli/Output.h"

namespace ardeo
{

/// Thrown to end a command early.
struct Failure {
    /// What goes to standard error, without the last line break.
    QString error;
    /// The program's exit status.
    int status = 1;
};

/// Ends the command; the reason, where there is one, is a line of its own.
[[noreturn]] inline void fail(const QString& error, const QString& reason = {})
{
    throw Failure{reason.isEmpty() ? printable(error) : printable(error) + u'\n' + printable(reason)};
}

/// Ends the command for its wrong usage.
[[noreturn]] inline void failUsage(const QString& error)
{
    throw Failure{printable(error), 2};
}

} // namespace ardeo
