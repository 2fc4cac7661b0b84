// SPDX-License-Identifier: MIT
/** From options to a project. */
#pragma once

#include <optional>

#include "Commands.h"
#include "Zef/Peer/Project.h"

/** Tells warnings and errors on the standard error stream; empty when a file cannot be read. */
std::optional<Zef::Peer::FProject> OpenProject(const FProjectOptions& Options);
