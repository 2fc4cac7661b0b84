// SPDX-License-Identifier: MIT
#include "Uniqueness.h"

#include "Text.h"

namespace Zef
{

void FNameSet::Add(const std::string& Name)
{
	Names.emplace_back(FoldCase(Name), Names.size());
}

FLinkFault FNameSet::FirstFault(const std::string& ListPath)
{
	std::sort(Names.begin(), Names.end());
	std::size_t First = std::string::npos;
	const char* Reason = "";
	const auto Note = [&](std::size_t Index, const char* Why)
	{
		if (Index < First)
		{
			First = Index;
			Reason = Why;
		}
	};
	for (std::size_t Index = 0; Index < Names.size(); ++Index)
	{
		const auto& [Name, Place] = Names[Index];
		if (Name.empty())
		{
			Note(Place, "A name was expected; it is empty.");
		}
		else if (Name == "none")
		{
			Note(Place, "A name was expected; \"None\" means that there is none.");
		}
		else if (Index > 0 && Name == Names[Index - 1].first)
		{
			Note(Place, "A name of its own was expected; an earlier joint has it.");
		}
	}
	return First == std::string::npos
			   ? FLinkFault{}
			   : MakeFault(EFault::JointName, ListPath + "/" + std::to_string(First) + "/Name", Reason);
}

} // namespace Zef
