// SPDX-License-Identifier: MIT
/** Writes the text of a case, line by line. */
#pragma once

#include "Recipes.h"
#include "Zef/Encode.h"
#include "Zef/Wire.h"

#include <initializer_list>

namespace ConformanceTest
{

class FCaseText
{
public:
	FCaseText(const char* About, const char* To)
		: Text(std::string("# ") + About + "\nto " + To + "\n")
	{
	}

	FCaseText& Line(const std::string& Words)
	{
		Text += Words + "\n";
		return *this;
	}

	FCaseText& Message(std::initializer_list<Zef::FBytes> Parts)
	{
		const char* Word = "message\n";
		for (const Zef::FBytes& Part : Parts)
		{
			Text += Word + Hexadecimal(Part);
			Word = "part\n";
		}
		return *this;
	}

	/** The header of an item and its arrays in one piece. */
	FCaseText& Item(const Zef::FEncodedItem& Item, std::uint64_t Number = 1)
	{
		Header(Item.Header, Number);
		Zef::FBytes Arrays;
		for (const Zef::FChunk& Chunk : Item.Chunks)
		{
			Arrays.insert(Arrays.end(), Chunk.Data, Chunk.Data + Chunk.Size);
		}
		return Arrays.empty() ? *this : Piece(Arrays, Number);
	}

	FCaseText& Header(const Zef::FBytes& Header, std::uint64_t Number = 1)
	{
		return Message({Prefix(Zef::EFrame::Item, Number), Header});
	}

	FCaseText& Piece(const Zef::FBytes& Bytes, std::uint64_t Number = 1, std::uint64_t Offset = 0)
	{
		return Message({Prefix(Zef::EFrame::Piece, Number, Offset), Bytes});
	}

	static Zef::FBytes Prefix(Zef::EFrame Frame, std::uint64_t Item = 0, std::uint64_t Offset = 0)
	{
		const auto Bytes = Zef::EncodePrefix({Frame, Item, Offset});
		return {Bytes.begin(), Bytes.end()};
	}

	FRecipe As(const std::string& Name) const { return {Name, Text}; }

private:
	static std::string Hexadecimal(const Zef::FBytes& Bytes)
	{
		static constexpr char Digits[] = "0123456789abcdef";
		std::string Lines;
		for (std::size_t Index = 0; Index < Bytes.size(); ++Index)
		{
			Lines += {Digits[Bytes[Index] >> 4], Digits[Bytes[Index] & 15]};
			Lines += Index % 32 == 31 || Index + 1 == Bytes.size() ? "\n" : "";
		}
		return Lines;
	}

	std::string Text;
};

} // namespace ConformanceTest
