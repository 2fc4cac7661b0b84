// SPDX-License-Identifier: MIT
/** What an object holds, for people. */
#pragma once

#include "Zef/Peer/Project.h"

/** Several lines on the standard output: counts, surfaces, materials, textures, animation. */
void PrintObject(const Zef::Peer::FProjectObject& Object);
