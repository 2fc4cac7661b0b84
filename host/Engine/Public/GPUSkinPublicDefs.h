// SPDX-License-Identifier: MIT
// Limits of skinned vertices.
#pragma once

/** Most bones that one vertex hangs on. */
#define MAX_TOTAL_INFLUENCES 12
