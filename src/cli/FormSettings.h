#pragma once

#include "cli/Arguments.h"
#include "model/MainViewModel.h"

namespace ardeo
{

/// Takes what the command line names into the model's form, and returns what that is: nothing in particular
/// where it is a whole profile. Throws Failure where it does not go with what the service has.
std::optional<Settings> takeSettings(const Arguments& arguments, MainViewModel& model);

} // namespace ardeo
