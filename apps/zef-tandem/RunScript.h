// SPDX-License-Identifier: MIT
/** The editor led by a list of commands. */
#pragma once

#include "Host/HeadlessEditor.h"

#include <filesystem>

/** Checks the script whole, then runs it. @return the program's exit status */
int RunScript(const Host::FHeadlessOptions& Editor, const std::filesystem::path& File);
