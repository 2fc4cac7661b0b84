// SPDX-License-Identifier: MIT
#include "FaultCases.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace
{
using namespace LinkTest;

std::vector<FFaultCase> AllCases()
{
	std::vector<FFaultCase> Cases = StructureFaultCases();
	for (std::vector<FFaultCase> More : {MeaningFaultCases(), EndpointFaultCases(), AccessFaultCases()})
	{
		Cases.insert(Cases.end(), More.begin(), More.end());
	}
	return Cases;
}

class Fault : public testing::TestWithParam<FFaultCase>
{
};

TEST_P(Fault, IsReportedWithItsCodeAndPlace)
{
	const Zef::FLinkFault Report = GetParam().Provoke();
	EXPECT_EQ(Report.Code, GetParam().Code) << ToString(Report);
	EXPECT_EQ(Report.Path, GetParam().Path) << ToString(Report);
	EXPECT_FALSE(Report.Message.empty());
	EXPECT_EQ(Report.Severity, Zef::FaultInfo(Report.Code).Severity);
}

INSTANTIATE_TEST_SUITE_P(OfTheTable, Fault, testing::ValuesIn(AllCases()),
	[](const testing::TestParamInfo<FFaultCase>& Info)
	{ return std::string(Zef::FaultInfo(Info.param.Code).Name) + "_" + Info.param.Name; });

TEST(FaultTable, SaysWhatEachFaultMeansAndWhatToDo)
{
	Zef::EFault Last = Zef::EFault::None;
	for (const Zef::FFaultInfo& Info : Zef::FaultTable())
	{
		EXPECT_LT(Last, Info.Code) << Info.Name;
		EXPECT_TRUE(std::string_view(Info.Text).ends_with(".")) << Info.Name;
		EXPECT_TRUE(std::string_view(Info.Remedy).ends_with(".")) << Info.Name << " lacks what to do";
		Last = Info.Code;
	}
}

TEST(FaultTable, HasACaseForEachCode)
{
	std::set<Zef::EFault> Provoked;
	for (const FFaultCase& Case : AllCases())
	{
		Provoked.insert(Case.Code);
	}
	for (const Zef::FFaultInfo& Info : Zef::FaultTable())
	{
		EXPECT_TRUE(Provoked.contains(Info.Code)) << Info.Name;
	}
}
} // namespace
