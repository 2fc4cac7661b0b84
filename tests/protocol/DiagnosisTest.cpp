// SPDX-License-Identifier: MIT
#include "RawPeer.h"
#include "Zef/Diagnosis.h"
#include "Zef/Keys.h"

#include <atomic>
#include <thread>

#include <sys/stat.h>

namespace
{
using namespace LinkTest;
using Zef::EFindingState;
using Zef::ELinkReason;

/** The doctor in an environment of its own. */
class Diagnosis : public testing::Test
{
protected:
	void SetUp() override
	{
		unsetenv(Zef::EndpointVariable);
		unsetenv(Zef::KeysVariable);
		setenv("XDG_RUNTIME_DIR", Folder.Path.c_str(), 1);
		Options.Timeout = std::chrono::milliseconds(5000);
	}
	void TearDown() override
	{
		unsetenv("XDG_RUNTIME_DIR");
		unsetenv(Zef::EndpointVariable);
	}

	/** Looks while an application, when there is one, serves. */
	void Look(FApplication* Application = nullptr)
	{
		std::atomic<bool> bOver{false};
		std::thread Serving(
			[&]
			{
				while (Application != nullptr && !bOver)
				{
					Application->Poll(std::chrono::milliseconds(5));
				}
			});
		Found = Zef::Diagnose(Options);
		bOver = true;
		Serving.join();
	}

	/** States of the findings: 'o' right, 'x' wrong, '-' not looked at, each after the first letter of its subject. */
	std::string Summary() const
	{
		std::string Text;
		for (const Zef::FFinding& Finding : Found.Findings)
		{
			Text += Finding.Subject;
			Text += Finding.State == EFindingState::Right ? "+ " : Finding.State == EFindingState::Wrong ? "! " : "? ";
		}
		return Text;
	}

	std::string Lines() const
	{
		std::string Text;
		for (const Zef::FFinding& Finding : Found.Findings)
		{
			Text += ToString(Finding) + "\n";
		}
		return Text;
	}

	FTestFolder Folder;
	Zef::FDiagnosisOptions Options;
	Zef::FDiagnosis Found;
};

TEST_F(Diagnosis, OfALinkThatWorksFindsEverythingRight)
{
	auto Opened = Zef::FServerEndpoint::Open("Tandem");
	ASSERT_TRUE(Opened);
	FApplication Application("ipc://*");
	Application.Server = std::move(*Opened);
	Look(&Application);
	EXPECT_EQ(Summary(), "endpoint+ keys+ folder+ socket+ peer+ version+ ") << Lines();
	EXPECT_FALSE(Found.Reason());
	EXPECT_NE(Lines().find("(mode 0700)"), std::string::npos) << Lines();
	EXPECT_NE(Lines().find("(mode 0600)"), std::string::npos) << Lines();
	EXPECT_NE(Lines().find("\"garment application\" answers"), std::string::npos) << Lines();
	EXPECT_NE(Lines().find("protocol version 2; this editor speaks 1 to 2"), std::string::npos) << Lines();
}

TEST_F(Diagnosis, WithNobodySaysHowToStartOne)
{
	Look();
	EXPECT_EQ(Summary(), "endpoint+ keys+ folder! socket? peer? version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::NobodyServes);
	EXPECT_NE(Lines().find("zef-peer serve"), std::string::npos) << Lines();
	mkdir((Folder.Path + "/zef-tandem").c_str(), 0700);
	Look();
	EXPECT_EQ(Summary(), "endpoint+ keys+ folder+ socket! peer? version? ") << Lines();
}

TEST_F(Diagnosis, OfASocketWithoutAListenerSaysThatTheApplicationDied)
{
	mkdir((Folder.Path + "/zef-tandem").c_str(), 0700);
	const std::string Path = Folder.Path + "/zef-tandem/Tandem.sock";
	{
		auto Opened = Zef::FServerEndpoint::Open("Tandem");
		ASSERT_TRUE(Opened);
		// The end removes the file under its name; under another one it stays.
		ASSERT_EQ(rename(Path.c_str(), (Path + ".left").c_str()), 0);
	}
	ASSERT_EQ(rename((Path + ".left").c_str(), Path.c_str()), 0);
	Look();
	EXPECT_EQ(Summary(), "endpoint+ keys+ folder+ socket+ peer! version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::StaleSocket) << Lines();
}

TEST_F(Diagnosis, OfAFolderThatIsOpenToOthersSaysWhatToRun)
{
	mkdir((Folder.Path + "/zef-tandem").c_str(), 0700);
	chmod((Folder.Path + "/zef-tandem").c_str(), 0755);
	Look();
	EXPECT_EQ(Summary(), "endpoint+ keys+ folder! socket? peer? version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::FolderUnsafe);
	EXPECT_NE(Lines().find("chmod 700"), std::string::npos) << Lines();
}

TEST_F(Diagnosis, OfAnAddressThatIsNoneSaysWhichOnesAre)
{
	setenv(Zef::EndpointVariable, "udp://127.0.0.1:1", 1);
	Look();
	EXPECT_EQ(Summary(), "endpoint! keys? peer? version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::AddressRefused);
}

TEST_F(Diagnosis, OfAnApplicationOfAnotherVersionNamesBoth)
{
	Zef::FServerOptions Server;
	Server.Versions = {7, 9};
	FApplication Application(Folder.Socket(), Server);
	Options.Endpoint = Folder.Socket();
	Look(&Application);
	EXPECT_EQ(Summary(), "endpoint+ keys+ socket+ peer+ version! ") << Lines();
	EXPECT_NE(Lines().find("speaks protocol version 7 to 9, the editor 1 to 2"), std::string::npos) << Lines();
	EXPECT_NE(Lines().find("Update the older"), std::string::npos) << Lines();
}

TEST_F(Diagnosis, OfSomethingThatIsNoPeerSaysSo)
{
	FRawApplication Raw(Folder.Socket());
	Options.Endpoint = Folder.Socket();
	std::thread Answering(
		[&]
		{
			Raw.ReceiveFrame(Zef::EFrame::Hello);
			Raw.Send({Zef::FBytes{'H', 'T', 'T', 'P'}});
		});
	Found = Zef::Diagnose(Options);
	Answering.join();
	EXPECT_EQ(Summary(), "endpoint+ keys+ socket+ peer! version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::NotAPeer) << Lines();
}

TEST_F(Diagnosis, OfARemoteAddressLooksAtKeysAndPort)
{
	const auto Keys = Zef::MakeKeyFiles(Folder.Path + "/pair");
	ASSERT_TRUE(Keys);
	Zef::FServerOptions Server;
	Server.KeyFile = Keys->Application;
	FApplication Application("tcp://0.0.0.0:*", Server);
	const std::string Bound = Application.Server->Endpoint();
	// By its name the machine counts as another one.
	Options.Endpoint = "tcp://localhost" + Bound.substr(Bound.rfind(':'));
	Look(&Application);
	EXPECT_EQ(Summary(), "endpoint+ keys! port+ peer? version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::KeysNeeded);
	EXPECT_NE(Lines().find("zef-peer keys"), std::string::npos) << Lines();

	Options.KeyFile = Keys->Editor;
	Look(&Application);
	EXPECT_EQ(Summary(), "endpoint+ keys+ port+ peer+ version+ ") << Lines();

	chmod(Keys->Editor.c_str(), 0644);
	Look(&Application);
	EXPECT_EQ(Summary(), "endpoint+ keys! port+ peer? version? ") << Lines();
	EXPECT_NE(Lines().find("chmod 600"), std::string::npos) << Lines();
	chmod(Keys->Editor.c_str(), 0600);

	Application.Server.reset();
	Look();
	EXPECT_EQ(Summary(), "endpoint+ keys+ port! peer? version? ") << Lines();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::PortClosed) << Lines();

	Options.Endpoint = "tcp://no-such-machine.invalid:5600";
	Look();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::NameUnknown) << Lines();
}

TEST_F(Diagnosis, GivesTheReasonThatTheLogOfALostLinkGives)
{
	Options.Endpoint = Folder.Socket();
	FEditor Editor(Folder.Socket(), QuickClient());
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, nullptr, [&] { return !Editor.Connections.empty(); }));
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, ELinkReason::NobodyServes);
	Look();
	EXPECT_EQ(Found.Reason().Kind, ELinkReason::NobodyServes);
	EXPECT_NE(Editor.Reasons[0].find(Found.Reason().Advice()), std::string::npos) << Editor.Reasons[0];
}

TEST(LinkReasons, EachHasANameAndSaysWhatToDo)
{
	std::size_t Place = 0;
	for (const Zef::FLinkReasonInfo& Info : Zef::LinkReasonTable())
	{
		EXPECT_EQ(static_cast<std::size_t>(Info.Kind), Place++);
		EXPECT_EQ(Zef::LinkReasonInfo(Info.Kind).Name, Info.Name);
		EXPECT_EQ(std::string(Info.Advice).empty(), Info.Kind == ELinkReason::Well) << Info.Name;
	}
	EXPECT_EQ(Place, static_cast<std::size_t>(ELinkReason::OutOfMemory) + 1);
}
} // namespace
