// SPDX-License-Identifier: MIT
/** What an update brought, as a table for people. */
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Host
{

/** One object that stands in the preview. */
struct FUpdateRow
{
	std::string Object; // name of the component
	std::string Kind;	// Garment, Avatar, Outfit, Prop
	std::string ComponentClass;
	std::int64_t Triangles = 0;
	std::int64_t Vertices = 0;
	std::int32_t MaterialSlots = 0;
	std::int32_t Textures = 0;		// different ones that its materials use
	double ReceiveMilliseconds = 0; // from the first byte to the checked record
	double ConvertMilliseconds = 0; // from the record to the component in the scene
};

/** Rows with a header, columns aligned, numbers to the right, one line each. */
std::string FormatUpdateTable(const std::vector<FUpdateRow>& Rows);

} // namespace Host
