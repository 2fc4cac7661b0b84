// SPDX-License-Identifier: MIT
#include "LinkFixture.h"
#include "Zef/LinkWatch.h"

#include <atomic>

namespace
{
using namespace LinkTest;
using Zef::ELinkState;

bool Stands(ELinkState State)
{
	const std::vector<Zef::FLinkStatus> Statuses = Zef::LinkStatuses();
	return Statuses.size() == 1 && Statuses[0].State == State;
}

TEST(LinkWatch, TellsAddressAndStateOfALinkWhileItIsOpen)
{
	const FTestFolder Folder;
	{
		FEditor Editor(Folder.Socket(), QuickClient());
		ASSERT_TRUE(Until(&Editor, nullptr, [] { return Stands(ELinkState::Absent); }));
		const Zef::FLinkStatus Status = Zef::LinkStatuses()[0];
		EXPECT_EQ(Status.Name, Folder.Socket());
		EXPECT_EQ(Status.Address, Folder.Socket());
		EXPECT_NE(Status.Detail.find("No garment application"), std::string::npos) << Status.Detail;
	}
	EXPECT_TRUE(Zef::LinkStatuses().empty());
}

TEST(LinkWatch, TellsWhatTheGarmentApplicationCallsItselfAndThatItIsGone)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Program = "garments 7";
	auto Application = std::make_unique<FApplication>(Folder.Socket(), Options);
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, Application.get(), [] { return Stands(ELinkState::Up); }));
	EXPECT_NE(Zef::LinkStatuses()[0].Detail.find("garments 7"), std::string::npos) << Zef::LinkStatuses()[0].Detail;

	Application.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [] { return Stands(ELinkState::Absent); }));
}

TEST(LinkWatch, CallsTheListenerWhenSomethingWaitsUntilItIsTakenAway)
{
	const FTestFolder Folder;
	std::atomic<int> Calls = 0;
	Zef::SetLinkListener([&Calls] { ++Calls; });
	FApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Connections.empty(); }));
	EXPECT_GE(Calls, 1);

	const int CallsOfConnecting = Calls;
	Editor.Client->SendAvailability();
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Availabilities.empty(); }));
	EXPECT_GT(Calls, CallsOfConnecting);

	Zef::SetLinkListener(nullptr);
	const int CallsAtTheEnd = Calls;
	Editor.Client->SendAvailability();
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Availabilities.size() == 2; }));
	EXPECT_EQ(Calls, CallsAtTheEnd);
}
} // namespace
