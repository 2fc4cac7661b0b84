// SPDX-License-Identifier: MIT
#include "LinkFixture.h"
#include "Zef/Address.h"

#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
using namespace LinkTest;
using Zef::EFault;

/** Variables of the environment for the length of a test. */
class Address : public testing::Test
{
protected:
	void SetUp() override
	{
		unsetenv(Zef::EndpointVariable);
		setenv("XDG_RUNTIME_DIR", Folder.Path.c_str(), 1);
	}
	void TearDown() override
	{
		unsetenv(Zef::EndpointVariable);
		unsetenv("XDG_RUNTIME_DIR");
	}

	FTestFolder Folder;
};

TEST_F(Address, OfAChannelLiesInTheUsersRuntimeFolder)
{
	const auto Found = Zef::AddressOfChannel("Tandem");
	ASSERT_TRUE(Found);
	EXPECT_EQ(Found->Folder, Folder.Path + "/zef-tandem");
	EXPECT_EQ(Found->SocketFile, Folder.Path + "/zef-tandem/Tandem.sock");
	EXPECT_EQ(Found->Endpoint, "ipc://" + Folder.Path + "/zef-tandem/Tandem.sock");
	EXPECT_EQ(Zef::ResolveEndpoint(*Found), Found->Endpoint);
}

TEST_F(Address, WithoutARuntimeFolderIsTheUsersOwnInTheTemporaryOne)
{
	const std::string Expected = "/tmp/zef-tandem-" + std::to_string(geteuid());
	unsetenv("XDG_RUNTIME_DIR");
	EXPECT_EQ(Zef::AddressOfChannel("Tandem")->Folder, Expected);
	setenv("XDG_RUNTIME_DIR", "relative/folder", 1);
	EXPECT_EQ(Zef::AddressOfChannel("Tandem")->Folder, Expected);
}

TEST_F(Address, WritesOddCharactersOfAChannelAsNumbers)
{
	EXPECT_EQ(
		Zef::AddressOfChannel("../a b.\xc3\xbc")->SocketFile, Folder.Path + "/zef-tandem/%2E%2E%2Fa%20b%2E%C3%BC.sock");
	EXPECT_EQ(Zef::AddressOfChannel("").Fault().Code, EFault::AddressRefused);
}

TEST_F(Address, TooLongForASocketIsRefusedWithItsPath)
{
	const auto Found = Zef::AddressOfChannel(std::string(200, 'x'));
	ASSERT_FALSE(Found);
	EXPECT_EQ(Found.Fault().Code, EFault::AddressRefused);
	EXPECT_NE(Found.Fault().Message.find(Folder.Path), std::string::npos);
}

TEST_F(Address, MayBeNamedByTheEnvironment)
{
	setenv(Zef::EndpointVariable, "tcp://127.0.0.1:5555", 1);
	EXPECT_EQ(Zef::AddressOfChannel("Tandem")->Endpoint, "tcp://127.0.0.1:5555");
	EXPECT_EQ(Zef::AddressOfChannel("Tandem")->Folder, "");
	setenv(Zef::EndpointVariable, "tcp://192.168.0.1:5555", 1);
	EXPECT_EQ(Zef::AddressOfChannel("Tandem").Fault().Code, EFault::AddressRefused);
	setenv(Zef::EndpointVariable, "", 1);
	EXPECT_EQ(Zef::AddressOfChannel("Tandem")->Folder, Folder.Path + "/zef-tandem");
}

TEST_F(Address, IsLocalOrRefused)
{
	for (const char* Local :
		{"ipc:///tmp/x.sock", "ipc://*", "tcp://127.0.0.1:1", "tcp://127.0.0.1:*", "tcp://[::1]:1", "portfile:/tmp/x"})
	{
		EXPECT_TRUE(Zef::AddressOfEndpoint(Local)) << Local;
	}
	for (const char* Other : {"", "ipc://", "tcp://*:1", "tcp://0.0.0.0:1", "tcp://localhost:1",
			 "tcp://127.0.0.1.evil:1", "udp://127.0.0.1:1", "pgm://127.0.0.1:1", "portfile:", "/tmp/x.sock"})
	{
		EXPECT_EQ(Zef::AddressOfEndpoint(Other).Fault().Code, EFault::AddressRefused) << Other;
	}
}

TEST_F(Address, PortFileIsReadEachTimeAndMustNameALoopbackPort)
{
	const std::string File = Folder.Path + "/x.port";
	const auto Found = Zef::AddressOfEndpoint("portfile:" + File);
	ASSERT_TRUE(Found);
	EXPECT_EQ(Zef::ResolveEndpoint(*Found), "");
	std::ofstream(File) << "tcp://127.0.0.1:1234\n";
	EXPECT_EQ(Zef::ResolveEndpoint(*Found), "tcp://127.0.0.1:1234");
	std::ofstream(File) << "tcp://10.0.0.1:1234\n";
	EXPECT_EQ(Zef::ResolveEndpoint(*Found), "");
}

TEST_F(Address, FolderIsMadeForTheUserAlone)
{
	const auto Found = Zef::AddressOfChannel("Tandem");
	EXPECT_FALSE(Zef::CheckFolder(*Found)) << "a folder that is not there";
	EXPECT_FALSE(Zef::PrepareFolder(*Found));
	struct stat Status
	{
	};
	ASSERT_EQ(stat(Found->Folder.c_str(), &Status), 0);
	EXPECT_EQ(Status.st_mode & 0777, 0700u);
	EXPECT_FALSE(Zef::PrepareFolder(*Found)) << "a second time";
}

TEST_F(Address, FolderThatIsOpenToOthersIsRefusedByBothEnds)
{
	const auto Found = Zef::AddressOfChannel("Tandem");
	mkdir(Found->Folder.c_str(), 0700);
	chmod(Found->Folder.c_str(), 0750);
	EXPECT_EQ(Zef::PrepareFolder(*Found).Code, EFault::AddressRefused);
	EXPECT_EQ(Zef::CheckFolder(*Found).Code, EFault::AddressRefused);
	EXPECT_EQ(Zef::FServerEndpoint::Open("Tandem").Fault().Code, EFault::AddressRefused);
}

TEST_F(Address, LinkInPlaceOfTheFolderIsRefused)
{
	const auto Found = Zef::AddressOfChannel("Tandem");
	mkdir((Folder.Path + "/elsewhere").c_str(), 0700);
	ASSERT_EQ(symlink((Folder.Path + "/elsewhere").c_str(), Found->Folder.c_str()), 0);
	EXPECT_EQ(Zef::PrepareFolder(*Found).Code, EFault::AddressRefused);
	EXPECT_EQ(Zef::CheckFolder(*Found).Code, EFault::AddressRefused);
}

TEST_F(Address, EditorTurnsAwayFromAnApplicationInAFolderThatIsOpenToOthers)
{
	auto Opened = Zef::FServerEndpoint::Open("Tandem");
	ASSERT_TRUE(Opened) << ToString(Opened.Fault());
	chmod((Folder.Path + "/zef-tandem").c_str(), 0755);
	auto Client = Zef::FClientEndpoint::Open("Tandem", std::make_shared<Zef::FRecordFactory>(), QuickClient());
	ASSERT_TRUE(Client);
	FEditor Editor("ipc://" + Folder.Path + "/unused.sock");
	Editor.Client = std::move(*Client);
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::AddressRefused);
	EXPECT_NE(Editor.Faults[0].Message.find("chmod 700"), std::string::npos);

	chmod((Folder.Path + "/zef-tandem").c_str(), 0700);
	EXPECT_TRUE(Until(&Editor, nullptr, [&] { return Editor.Client->IsConnected(); }));
	EXPECT_EQ(Editor.Faults.size(), 1u);
}

TEST_F(Address, OfAChannelServesBothEndsAndTheStatistics)
{
	auto Opened = Zef::FServerEndpoint::Open("Tandem");
	ASSERT_TRUE(Opened) << ToString(Opened.Fault());
	FApplication Application("ipc://*");
	Application.Server = std::move(*Opened);
	auto Client = Zef::FClientEndpoint::Open("Tandem", std::make_shared<Zef::FRecordFactory>(), QuickClient());
	FEditor Editor("ipc://" + Folder.Path + "/unused.sock");
	Editor.Client = std::move(*Client);
	Zef::ClearReceiveReports("Tandem");
	Editor.Client->SendAvailability();
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Availabilities.empty(); }));
	EXPECT_EQ(Zef::ReceiveReports("Tandem").size(), 1u);
	EXPECT_EQ(Zef::ReceiveReports("Tandem")[0].Item, Zef::EItem::Availability);
}
} // namespace
