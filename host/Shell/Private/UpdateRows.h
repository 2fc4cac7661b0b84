// SPDX-License-Identifier: MIT
/** What stands in the preview, in numbers. */
#pragma once

#include "Host/UpdateReport.h"

#include <map>
#include <vector>

class FZEFTandemEditor;

namespace Host
{

/**
 * One row for each object in the preview, by type and arrival.
 *
 * @param ConvertMilliseconds  by object type, of the latest arrival
 */
std::vector<FUpdateRow> CollectUpdateRows(
	const FZEFTandemEditor& Editor, const std::map<int, double>& ConvertMilliseconds);

} // namespace Host
