// SPDX-License-Identifier: MIT
#include "Host/UpdateReport.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Host
{

namespace
{

constexpr std::size_t NumColumns = 9;
using FCells = std::array<std::string, NumColumns>;

const FCells Header = {"Object", "Kind", "Component class", "Triangles", "Vertices", "Material slots", "Textures",
	"Receive ms", "Convert ms"};
constexpr std::size_t FirstNumber = 3; // this column and those after it are numbers

std::string FormatMilliseconds(double Milliseconds)
{
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%.1f", Milliseconds);
	return Text;
}

FCells ToCells(const FUpdateRow& Row)
{
	return {Row.Object, Row.Kind, Row.ComponentClass, std::to_string(Row.Triangles), std::to_string(Row.Vertices),
		std::to_string(Row.MaterialSlots), std::to_string(Row.Textures), FormatMilliseconds(Row.ReceiveMilliseconds),
		FormatMilliseconds(Row.ConvertMilliseconds)};
}

void AppendLine(std::string& Table, const FCells& Cells, const std::array<std::size_t, NumColumns>& Widths)
{
	for (std::size_t Column = 0; Column < NumColumns; ++Column)
	{
		const std::string Padding(Widths[Column] - Cells[Column].size(), ' ');
		Table += Column == 0 ? "" : "  ";
		Table += Column < FirstNumber ? Cells[Column] + Padding : Padding + Cells[Column];
	}
	Table += '\n';
}

} // namespace

std::string FormatUpdateTable(const std::vector<FUpdateRow>& Rows)
{
	std::vector<FCells> Lines = {Header};
	for (const FUpdateRow& Row : Rows)
	{
		Lines.push_back(ToCells(Row));
	}
	std::array<std::size_t, NumColumns> Widths{};
	for (const FCells& Line : Lines)
	{
		for (std::size_t Column = 0; Column < NumColumns; ++Column)
		{
			Widths[Column] = std::max(Widths[Column], Line[Column].size());
		}
	}
	std::string Table;
	for (const FCells& Line : Lines)
	{
		AppendLine(Table, Line, Widths);
	}
	return Table;
}

} // namespace Host
