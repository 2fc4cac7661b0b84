// SPDX-License-Identifier: MIT
#include "LinkFixture.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
using namespace LinkTest;
using Zef::EObjectType;

TEST(Connection, IsMadeWhenTheApplicationComesFirst)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(
		Until(&Editor, &Application, [&] { return Application.Connected == 1 && Editor.Client->IsConnected(); }));
	Editor.Poll();
	EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
}

TEST(Connection, IsMadeWhenTheEditorComesFirst)
{
	const FTestFolder Folder;
	FEditor Editor(Folder.Socket(), QuickClient());
	// A request that finds nobody shows that the editor has tried.
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Client->SendEnable(true); }));
	FApplication Application(Folder.Socket());
	ASSERT_TRUE(
		Until(&Editor, &Application, [&] { return Application.Connected == 1 && Editor.Client->IsConnected(); }));
	Editor.Poll();
	EXPECT_EQ(Editor.Connections.back(), true);
}

TEST(Connection, OfNobodyIsNotToldUnlessSomethingIsAsked)
{
	const FTestFolder Folder;
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Poll(std::chrono::milliseconds(20));
	EXPECT_TRUE(Editor.Connections.empty());
}

TEST(Connection, RequestOfNobodyIsToldOnceAtTheNextPoll)
{
	const FTestFolder Folder;
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({}); // held until it is known that nobody is there
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Connections.empty(); }));
	EXPECT_EQ(Editor.Connections, std::vector<bool>{false});
	EXPECT_NE(Editor.Reasons[0].find("No garment application serves"), std::string::npos);

	EXPECT_FALSE(Editor.Client->SendUpdate({}));
	EXPECT_FALSE(Editor.Client->SendAvailability());
	EXPECT_EQ(Editor.Connections.size(), 1u);
	Editor.Poll();
	EXPECT_EQ(Editor.Connections, (std::vector<bool>{false, false}));
	Editor.Poll();
	EXPECT_EQ(Editor.Connections.size(), 2u);
}

TEST(Connection, RequestMadeWhileItIsBeingEstablishedGoesOut)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	EXPECT_TRUE(Editor.Client->SendUpdate({}));
	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Application.Updates.size() == 1; }));
	EXPECT_EQ(Editor.Connections, std::vector<bool>{true});
}

TEST(Connection, SurvivesRestartsOfTheApplicationAndTellsEachChangeOnce)
{
	const FTestFolder Folder;
	FEditor Editor(Folder.Socket(), QuickClient());
	std::vector<bool> Expected;
	for (int Run = 0; Run < 5; ++Run)
	{
		FApplication Application(Folder.Socket());
		Application.OnUpdate = [&](Zef::FClientId Client)
		{ Application.Server->SendSurfaceMesh(Client, EObjectType::Avatar, SampleMesh()); };
		ASSERT_TRUE(Application.Server) << ToString(Application.OpenFault);
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Client->IsConnected(); }));
		EXPECT_TRUE(Editor.Client->SendUpdate({}));
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == std::size_t(Run) + 1; }));
		Application.Server.reset();
		ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == std::size_t(Run) * 2 + 2; }));
		Expected.insert(Expected.end(), {true, false});
	}
	EXPECT_EQ(Editor.Connections, Expected);
	EXPECT_TRUE(Editor.Faults.empty());
}

TEST(Connection, SurvivesRestartsOfTheEditor)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	for (int Run = 0; Run < 5; ++Run)
	{
		FEditor Editor(Folder.Socket(), QuickClient());
		Editor.Client->SendUpdate({});
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Application.Updates.size() == std::size_t(Run) + 1; }));
	}
	ASSERT_TRUE(Until(nullptr, &Application, [&] { return Application.Gone == 5; }));
	EXPECT_EQ(Application.Connected, 5);
	EXPECT_TRUE(Application.Faults.empty());
}

TEST(Connection, DeliversWhatArrivedBeforeTheApplicationEnded)
{
	const FTestFolder Folder;
	FApplication Application(Folder.Socket());
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(
		Until(&Editor, &Application, [&] { return Application.Connected == 1 && Editor.Client->IsConnected(); }));
	Application.Server->SendSurfaceMesh(Application.LastClient, EObjectType::Avatar, SampleMesh());
	ASSERT_TRUE(
		Until(nullptr, &Application, [&] { return Application.Server->QueuedBytes(Application.LastClient) == 0; }));
	Application.Server.reset();
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() == 2; }));
	EXPECT_EQ(Editor.Meshes.size(), 1u);
	EXPECT_EQ(Editor.Connections, (std::vector<bool>{true, false}));
}

TEST(Connection, RefusesAChannelThatALivingApplicationServes)
{
	const FTestFolder Folder;
	FApplication First(Folder.Socket());
	ASSERT_TRUE(First.Server);
	FApplication Second(Folder.Socket());
	EXPECT_FALSE(Second.Server);
	EXPECT_EQ(Second.OpenFault.Code, Zef::EFault::AddressTaken);
	EXPECT_NE(Second.OpenFault.Message.find("Another garment application"), std::string::npos);

	FEditor Editor(Folder.Socket(), QuickClient());
	EXPECT_TRUE(Until(&Editor, &First, [&] { return First.Connected == 1; }));
}

TEST(Connection, ReplacesTheSocketFileOfAnApplicationThatWasKilled)
{
	const FTestFolder Folder;
	const pid_t Child = fork();
	if (Child == 0)
	{
		// Killed without a chance to tidy up.
		FApplication Application(Folder.Socket());
		kill(getpid(), SIGKILL);
	}
	int Status = 0;
	waitpid(Child, &Status, 0);
	ASSERT_TRUE(WIFSIGNALED(Status));
	ASSERT_TRUE(std::filesystem::exists(Folder.Path + "/test.sock"));

	FApplication Application(Folder.Socket());
	EXPECT_TRUE(Application.Server) << ToString(Application.OpenFault);
	FEditor Editor(Folder.Socket(), QuickClient());
	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
}

TEST(Connection, LeavesTheSocketFileToItsUserAloneAndRemovesItAtTheEnd)
{
	const FTestFolder Folder;
	const std::string Path = Folder.Path + "/test.sock";
	{
		FApplication Application(Folder.Socket());
		struct stat Status
		{
		};
		ASSERT_EQ(stat(Path.c_str(), &Status), 0);
		EXPECT_EQ(Status.st_mode & 0777, 0600u);
	}
	EXPECT_FALSE(std::filesystem::exists(Path));
}

TEST(Connection, FindsAPortThroughItsFile)
{
	const FTestFolder Folder;
	const std::string Endpoint = "portfile:" + Folder.Path + "/test.port";
	FEditor Editor(Endpoint, QuickClient());
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Client->SendEnable(true); }));
	for (int Run = 1; Run <= 2; ++Run)
	{
		FApplication Application(Endpoint);
		ASSERT_TRUE(Application.Server) << ToString(Application.OpenFault);
		EXPECT_EQ(Application.Server->Endpoint().find("tcp://127.0.0.1:"), 0u);
		ASSERT_TRUE(Until(&Editor, &Application, [&] { return Application.Connected == 1; }));
		Application.Server.reset();
		EXPECT_FALSE(std::filesystem::exists(Folder.Path + "/test.port"));
	}
}

TEST(Connection, IsLostOnceWhenTheApplicationIsKilledInTheMiddleOfAnItem)
{
	const FTestFolder Folder;
	const pid_t Child = fork();
	if (Child == 0)
	{
		FApplication Application(Folder.Socket());
		Application.OnUpdate = [&](Zef::FClientId Client)
		{
			const auto Mesh = StripMesh(1'500'000);
			Application.Server->SendSurfaceMesh(Client, EObjectType::Garment, Mesh);
			const std::uint64_t All = Zef::EncodeSurfaceMesh(EObjectType::Garment, Mesh).PayloadBytes;
			while (Application.Server->QueuedBytes(Client) == All)
			{
				// Waits for the first piece to be out.
			}
			kill(getpid(), SIGKILL);
		};
		while (true)
		{
			Application.Poll(std::chrono::milliseconds(100));
		}
	}
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Client->IsConnected(); }));
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Connections.size() >= 2 && !Editor.Connections.back(); }));
	int Status = 0;
	waitpid(Child, &Status, 0);
	EXPECT_TRUE(Editor.Meshes.empty());

	FApplication Next(Folder.Socket());
	Next.OnUpdate = [&](Zef::FClientId Client)
	{ Next.Server->SendSurfaceMesh(Client, EObjectType::Garment, SampleMesh()); };
	ASSERT_TRUE(Until(&Editor, &Next, [&] { return Editor.Client->IsConnected(); }));
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Next, [&] { return Editor.Meshes.size() == 1; }));
	EXPECT_EQ(Editor.Connections, (std::vector<bool>{true, false, true}));
}
} // namespace
