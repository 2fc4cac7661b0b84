// SPDX-License-Identifier: MIT
#include "LinkFixture.h"
#include "Zef/Keys.h"

#include <fstream>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace
{
using namespace LinkTest;
using Zef::EFault;
using Zef::ELinkEnd;

unsigned ModeOf(const std::string& Path)
{
	struct stat Status
	{
	};
	return stat(Path.c_str(), &Status) == 0 ? Status.st_mode & 0777 : 0;
}

std::string TextOf(const std::string& Path)
{
	std::stringstream Text;
	Text << std::ifstream(Path).rdbuf();
	return Text.str();
}

/** A pair of key files in a folder of its own. */
class Keys : public testing::Test
{
protected:
	void SetUp() override
	{
		unsetenv(Zef::KeysVariable);
		auto Made = Zef::MakeKeyFiles(Folder.Path + "/pair");
		ASSERT_TRUE(Made) << ToString(Made.Fault());
		Files = *Made;
	}
	void TearDown() override { unsetenv(Zef::KeysVariable); }

	Zef::FServerOptions Server() const
	{
		Zef::FServerOptions Options;
		Options.KeyFile = Files.Application;
		return Options;
	}
	Zef::FClientOptions Client() const
	{
		Zef::FClientOptions Options = QuickClient();
		Options.KeyFile = Files.Editor;
		return Options;
	}

	FTestFolder Folder;
	Zef::FKeyFiles Files;
};

TEST_F(Keys, AreTwoFilesForTheirUserAlone)
{
	EXPECT_EQ(Files.Application, Folder.Path + "/pair.application.keys");
	EXPECT_EQ(Files.Editor, Folder.Path + "/pair.editor.keys");
	EXPECT_EQ(ModeOf(Files.Application), 0600u);
	EXPECT_EQ(ModeOf(Files.Editor), 0600u);

	const auto Application = Zef::LoadKeys(Files.Application, ELinkEnd::Application);
	const auto Editor = Zef::LoadKeys(Files.Editor, ELinkEnd::Editor);
	ASSERT_TRUE(Application) << ToString(Application.Fault());
	ASSERT_TRUE(Editor) << ToString(Editor.Fault());
	EXPECT_EQ(Application->OtherPublicKey, Editor->PublicKey);
	EXPECT_EQ(Editor->OtherPublicKey, Application->PublicKey);
	EXPECT_NE(Editor->SecretKey, Application->SecretKey);
}

TEST_F(Keys, HaveTheirModeWhateverTheUsersMaskIs)
{
	const mode_t Former = umask(0);
	const auto Made = Zef::MakeKeyFiles(Folder.Path + "/open");
	umask(Former);
	ASSERT_TRUE(Made);
	EXPECT_EQ(ModeOf(Made->Application), 0600u);
}

TEST_F(Keys, AreNeverOverwrittenAndNoHalfPairIsLeft)
{
	const std::string Before = TextOf(Files.Application);
	const auto Again = Zef::MakeKeyFiles(Folder.Path + "/pair");
	EXPECT_EQ(Again.Fault().Code, EFault::KeysRefused);
	EXPECT_EQ(TextOf(Files.Application), Before);

	std::ofstream(Folder.Path + "/half.editor.keys") << "mine";
	EXPECT_FALSE(Zef::MakeKeyFiles(Folder.Path + "/half"));
	EXPECT_FALSE(std::filesystem::exists(Folder.Path + "/half.application.keys"));
	EXPECT_EQ(TextOf(Folder.Path + "/half.editor.keys"), "mine");
	EXPECT_FALSE(Zef::MakeKeyFiles("/nowhere/at/all"));
	EXPECT_FALSE(Zef::MakeKeyFiles(""));
}

TEST_F(Keys, OfTheWrongEndOpenToOthersOrDamagedAreRefusedWithAReason)
{
	const auto Refusal = [](const std::string& Path)
	{
		const auto Loaded = Zef::LoadKeys(Path, ELinkEnd::Editor);
		EXPECT_EQ(Loaded.Fault().Code, EFault::KeysRefused) << Path;
		return Loaded.Fault().Message;
	};
	EXPECT_NE(Refusal(Files.Application).find("needs the file of the editor"), std::string::npos);
	EXPECT_NE(Refusal(Folder.Path + "/none").find("cannot be read"), std::string::npos);
	EXPECT_NE(Refusal(Folder.Path).find("is no file"), std::string::npos);

	const std::string Good = TextOf(Files.Editor);
	for (const mode_t Mode : {0640, 0604, 0620, 0602, 0660, 0777})
	{
		chmod(Files.Editor.c_str(), Mode);
		EXPECT_NE(Refusal(Files.Editor).find("chmod 600"), std::string::npos) << Mode;
	}
	chmod(Files.Editor.c_str(), 0600);
	const auto With = [&](const std::string& Text)
	{
		std::ofstream(Files.Editor, std::ios::trunc) << Text;
		return Refusal(Files.Editor);
	};
	EXPECT_NE(With("").find("is no key file"), std::string::npos);
	EXPECT_NE(With("something else\n").find("is no key file"), std::string::npos);
	EXPECT_NE(With(Good + "more lines\n").find("begins with \"more\""), std::string::npos);
	EXPECT_NE(With(Good.substr(0, Good.size() - 5)).find("is damaged"), std::string::npos);
	EXPECT_NE(With(std::string(5000, 'x')).find("longer than"), std::string::npos);
}

TEST_F(Keys, OfAnotherUserAreRefused)
{
	if (geteuid() != 0)
	{
		GTEST_SKIP() << "only root can give a file to another user";
	}
	ASSERT_EQ(chown(Files.Editor.c_str(), 65534, 65534), 0);
	const auto Loaded = Zef::LoadKeys(Files.Editor, ELinkEnd::Editor);
	EXPECT_EQ(Loaded.Fault().Code, EFault::KeysRefused);
	EXPECT_NE(Loaded.Fault().Message.find("belongs to user 65534"), std::string::npos);
}

TEST_F(Keys, AreNeededForARemoteAddressAtBothEnds)
{
	EXPECT_EQ(Zef::FServerEndpoint::OpenEndpoint("tcp://0.0.0.0:*").Fault().Code, EFault::AddressRefused);
	const auto Refused =
		Zef::FClientEndpoint::OpenEndpoint("tcp://example.org:5600", std::make_shared<Zef::FRecordFactory>());
	EXPECT_EQ(Refused.Fault().Code, EFault::AddressRefused);
	EXPECT_NE(Refused.Fault().Message.find("needs keys"), std::string::npos);

	Zef::FServerOptions Bad = Server();
	Bad.KeyFile = Folder.Path + "/none";
	EXPECT_EQ(Zef::FServerEndpoint::OpenEndpoint("tcp://0.0.0.0:*", Bad).Fault().Code, EFault::KeysRefused);
	Bad.KeyFile = Files.Editor;
	EXPECT_EQ(Zef::FServerEndpoint::OpenEndpoint("tcp://0.0.0.0:*", Bad).Fault().Code, EFault::KeysRefused);
}

/** The same port, as an editor on this machine reaches it. */
std::string Loopback(const std::string& Bound)
{
	return "tcp://127.0.0.1" + Bound.substr(Bound.rfind(':'));
}

TEST_F(Keys, CarryAnUpdateBetweenTheTwoEndsOfAPair)
{
	FApplication Application("tcp://0.0.0.0:*", Server());
	ASSERT_TRUE(Application.Server) << ToString(Application.OpenFault);
	Application.OnUpdate = [&](Zef::FClientId Id)
	{ Application.Server->SendSurfaceMesh(Id, Zef::EObjectType::Garment, StripMesh(300'000)); };
	FEditor Editor(Loopback(Application.Server->Endpoint()), Client());
	ASSERT_TRUE(Editor.Client) << ToString(Editor.OpenFault);
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return Editor.Meshes.size() == 1; }));
	EXPECT_TRUE(Editor.Meshes[0] == *StripMesh(300'000));
}

TEST_F(Keys, MayBeNamedByTheEnvironment)
{
	FApplication Application("tcp://0.0.0.0:*", Server());
	setenv(Zef::KeysVariable, Files.Editor.c_str(), 1);
	FEditor Editor(Loopback(Application.Server->Endpoint()), QuickClient());
	EXPECT_TRUE(Until(&Editor, &Application, [&] { return Editor.Client->IsConnected(); }));
}

TEST_F(Keys, OfAnotherPairAreTurnedAwayWithTheReason)
{
	FApplication Application("tcp://127.0.0.1:*", Server());
	const auto Other = Zef::MakeKeyFiles(Folder.Path + "/other");
	ASSERT_TRUE(Other);
	Zef::FClientOptions Options = QuickClient();
	Options.KeyFile = Other->Editor;
	FEditor Editor(Application.Server->Endpoint(), Options);
	Editor.Client->SendUpdate({});
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Connections.empty(); }));
	EXPECT_EQ(Editor.Connections, std::vector<bool>{false});
	EXPECT_EQ(Editor.Client->Status().Reason.Kind, Zef::ELinkReason::KeysRejected);
	EXPECT_EQ(Application.Connected, 0);
}

TEST_F(Keys, ThatTheApplicationDoesNotAdmitAreTurnedAwayAndItIsTold)
{
	FApplication Application("tcp://127.0.0.1:*", Server());
	// The application's public key is known; the editor's own key is another one.
	const auto Other = Zef::MakeKeyFiles(Folder.Path + "/other");
	const auto Theirs = Zef::LoadKeys(Files.Application, ELinkEnd::Application);
	const auto Stranger = Zef::LoadKeys(Other->Editor, ELinkEnd::Editor);
	chmod(Other->Editor.c_str(), 0600);
	std::ofstream(Other->Editor, std::ios::trunc)
		<< "zef-tandem keys 1\nend editor\npublic " << Stranger->PublicKey << "\nsecret " << Stranger->SecretKey
		<< "\nother " << Theirs->PublicKey << "\n";
	Zef::FClientOptions Options = QuickClient();
	Options.KeyFile = Other->Editor;
	FEditor Editor(Application.Server->Endpoint(), Options);
	ASSERT_TRUE(Until(&Editor, &Application, [&] { return !Editor.Faults.empty() && !Application.Faults.empty(); }));
	EXPECT_EQ(Editor.Faults[0].Code, EFault::KeysRefused);
	EXPECT_NE(Editor.Faults[0].Message.find("does not admit"), std::string::npos) << Editor.Faults[0].Message;
	EXPECT_EQ(Application.Faults[0].Code, EFault::KeysRefused);
	EXPECT_EQ(Application.Connected, 0);
}

TEST_F(Keys, AtOneEndAloneAreTurnedAwayWithTheReason)
{
	FApplication Locked("tcp://127.0.0.1:*", Server());
	FEditor Open(Locked.Server->Endpoint(), QuickClient());
	ASSERT_TRUE(Until(&Open, &Locked, [&] { return !Open.Faults.empty(); }));
	EXPECT_NE(Open.Faults[0].Message.find("wants keys"), std::string::npos) << Open.Faults[0].Message;

	FApplication Unlocked("tcp://127.0.0.1:*");
	FEditor Closed(Unlocked.Server->Endpoint(), Client());
	ASSERT_TRUE(Until(&Closed, &Unlocked, [&] { return !Closed.Faults.empty(); }));
	EXPECT_EQ(Closed.Faults[0].Code, EFault::KeysRefused) << ToString(Closed.Faults[0]);
	EXPECT_EQ(Closed.Client->Status().Reason.Kind, Zef::ELinkReason::KeysRejected);
	EXPECT_EQ(Unlocked.Connected, 0);
}
} // namespace
