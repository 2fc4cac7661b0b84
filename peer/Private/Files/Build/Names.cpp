// SPDX-License-Identifier: MIT
#include "Files/Build/Names.h"

#include <cstdint>

namespace Zef::Peer
{

namespace
{

/** Bytes of the character that begins here; 0 when it is none. */
std::size_t CharacterAt(const std::string& Text, std::size_t At)
{
	const auto Byte = [&](std::size_t I) -> std::uint32_t
	{ return I < Text.size() ? static_cast<unsigned char>(Text[I]) : 0u; };
	const std::uint32_t First = Byte(At);
	if (First < 0x80)
	{
		return First >= 0x20 && First != 0x7f ? 1 : 0;
	}
	const std::size_t Size = First >= 0xf0 ? 4 : First >= 0xe0 ? 3 : 2;
	std::uint32_t Code = First & (0xffu >> (Size + 1));
	for (std::size_t I = 1; I < Size; ++I)
	{
		if ((Byte(At + I) & 0xc0) != 0x80)
		{
			return 0;
		}
		Code = Code << 6 | (Byte(At + I) & 0x3f);
	}
	constexpr std::uint32_t Least[] = {0, 0, 0x80, 0x800, 0x10000};
	const bool bValid = First >= 0xc2 && First <= 0xf4 && Code >= Least[Size] && Code <= 0x10ffff &&
						!(Code >= 0xd800 && Code <= 0xdfff);
	return bValid ? Size : 0;
}

} // namespace

std::string CleanName(const std::string& Name)
{
	constexpr std::size_t Most = 200;
	std::string Clean;
	for (std::size_t At = 0; At < Name.size() && Clean.size() < Most;)
	{
		const std::size_t Size = CharacterAt(Name, At);
		Clean += Size > 0 ? Name.substr(At, Size) : "_";
		At += Size > 0 ? Size : 1;
	}
	return Clean;
}

std::string FoldName(const std::string& Name)
{
	std::string Folded = Name;
	for (char& C : Folded)
	{
		C = C >= 'A' && C <= 'Z' ? static_cast<char>(C - 'A' + 'a') : C;
	}
	return Folded;
}

std::string FUniqueNames::Make(const std::string& Name, const std::string& WhenEmpty)
{
	const std::string Clean = Name.empty() ? WhenEmpty : CleanName(Name);
	std::string Made = Clean;
	for (int Number = 2; !Taken.insert(FoldName(Made)).second; ++Number)
	{
		Made = Clean + "_" + std::to_string(Number);
	}
	return Made;
}

} // namespace Zef::Peer
