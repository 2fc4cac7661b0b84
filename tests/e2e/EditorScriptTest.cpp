// SPDX-License-Identifier: MIT
// Scripts: what is refused before anything runs, and a whole session with a garment application.
#include "Host/EditorScript.h"

#include "TemporaryFolder.h"
#include "e2e/Program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <memory>
#include <thread>

namespace
{

constexpr std::chrono::seconds Patience{120};

std::string Refusal(const std::string& Text)
{
	Host::FEditorScript Script;
	return Host::ParseEditorScript(Text, "s", Script);
}

class EditorScripts : public ::testing::Test
{
protected:
	std::string Endpoint() const { return "ipc://" + (Folder / "t.sock"); }

	std::unique_ptr<FProgram> StartPeer()
	{
		std::unique_ptr<FProgram> Peer =
			std::make_unique<FProgram>(std::vector<std::string>{ZEF_PEER_PROGRAM, "serve", "--endpoint", Endpoint(),
										   "--ready-file", Folder / "ready"},
				Folder / "peer.log");
		const auto Deadline = std::chrono::steady_clock::now() + Patience;
		while (!std::filesystem::exists(Folder / "ready") && Peer->IsRunning() &&
			   std::chrono::steady_clock::now() < Deadline)
		{
			std::this_thread::sleep_for(std::chrono::milliseconds(5));
		}
		return Peer;
	}

	/** Runs a script to its end; the exit status and what was printed. */
	std::pair<int, std::string> Run(const std::string& Text)
	{
		std::ofstream(Folder / "script.txt") << Text;
		FProgram Editor({ZEF_TANDEM_PROGRAM, "--headless", "--script", Folder / "script.txt", "--endpoint", Endpoint(),
							"--project", Folder / "Project"},
			Folder / "editor.log");
		const int Status = Editor.Wait(Patience);
		return {Status, Editor.Output()};
	}

	FTemporaryFolder Folder;
};

} // namespace

TEST(EditorScriptText, IsSplitIntoWordsWithQuotesAndComments)
{
	Host::FEditorScript Script;
	ASSERT_EQ(Host::ParseEditorScript("# first\n\n  tab open \"Tandem Tree\"  # behind\r\nclose\n", "s", Script), "");
	ASSERT_EQ(Script.Steps.size(), 2u);
	EXPECT_EQ(Script.Steps[0].Line, 3);
	EXPECT_EQ(Script.Steps[0].Verb, "tab");
	EXPECT_EQ(Script.Steps[0].Arguments, (std::vector<std::string>{"open", "Tandem Tree"}));
	EXPECT_EQ(Script.Steps[1].Line, 4);
}

TEST(EditorScriptText, IsRefusedWithItsLineAndWhatIsAllowed)
{
	EXPECT_EQ(Refusal("open\nopne\n"),
		"s:2: there is no \"opne\"; allowed are: open, close, command, answer, wait, select, tab, screenshot, print");
	EXPECT_EQ(Refusal("answer warnign ok"), "s:1: \"warnign\" is not known here; allowed are: warning, message");
	EXPECT_EQ(
		Refusal("answer warning maybe"), "s:1: \"maybe\" is not known here; allowed are: ok, cancel, never-again");
	EXPECT_EQ(Refusal("print"), "s:1: \"print\" is written: print tree|objects|tabs|toolbar|messages");
	EXPECT_EQ(Refusal("wait update soon"), "s:1: \"soon\" is no number of seconds");
	EXPECT_EQ(Refusal("wait update -1"), "s:1: \"-1\" is no number of seconds");
	EXPECT_EQ(Refusal("wait seconds"), "s:1: how many seconds? Write for instance: wait seconds 2");
	EXPECT_EQ(Refusal("command Update"),
		"s:1: \"Update\" is no command; write its context and its name, as in ZEFTandemEditor.Update");
	EXPECT_EQ(Refusal("screenshot a.png 10 20"), "s:1: \"10\" is no size of a picture; allowed are 16 to 8192");
	EXPECT_EQ(Refusal("screenshot a.png 640"), "s:1: a width needs a height behind it");
	EXPECT_EQ(Refusal("tab open \"Tandem Tree"), "s:1: a quotation mark is not closed");
}

TEST(EditorScriptText, ThatCannotBeReadIsNamed)
{
	Host::FEditorScript Script;
	EXPECT_EQ(Host::LoadEditorScript("/no/such/script", Script), "the script \"/no/such/script\" cannot be read");
}

TEST_F(EditorScripts, RunAWholeSession)
{
	const std::unique_ptr<FProgram> Peer = StartPeer();
	const auto [Status, Output] = Run("open\n"
									  "wait connected 60\n"
									  "print toolbar\n"
									  "answer warning ok\n"
									  "command ZEFTandemEditor.Update\n"
									  "wait update 60\n"
									  "select Avatar\n"
									  "print tree\n"
									  "tab open \"Secondary Toolbar\"\n"
									  "tab close Details\n"
									  "print tabs\n"
									  "close\n"
									  "open\n"
									  "print tabs\n"
									  "print tree\n"
									  "close\n");

	EXPECT_EQ(Status, 0);
	EXPECT_EQ(Output, "Update\nUpdate Options\nSave Selected Object\n"
					  "  Garment  DynamicMesh\n* Avatar  SkeletalMesh\n  Outfit  DynamicMesh\n  Prop  DynamicMesh\n"
					  "Secondary Toolbar\nTandem Tree\nViewport\nPreview Scene Settings\n"
					  "Secondary Toolbar\nTandem Tree\nViewport\nPreview Scene Settings\n");
}

TEST_F(EditorScripts, AskForNothingWhenTheWarningIsCancelled)
{
	const std::unique_ptr<FProgram> Peer = StartPeer();
	const auto [Status, Output] = Run("open\nwait connected 60\nanswer warning cancel\n"
									  "command ZEFTandemEditor.Update\nwait update 60\nprint tree\n");
	EXPECT_EQ(Status, 0);
	EXPECT_EQ(Output, "");
}

TEST_F(EditorScripts, KeepTheTickOfTheWarningOverARestart)
{
	const std::unique_ptr<FProgram> Peer = StartPeer();
	const std::string Update = "command ZEFTandemEditor.Update\nwait update 60\n";
	EXPECT_EQ(Run("open\nwait connected 60\nanswer warning never-again\n" + Update).first, 0);
	// No dialog comes any more that could take the answer.
	const auto [Status, Output] = Run("open\nwait connected 60\nanswer warning ok\n" + Update + "print tree\n");
	EXPECT_EQ(Status, 1);
	EXPECT_NE(Output.find("  Prop  DynamicMesh\n"), std::string::npos);
	EXPECT_NE(Output.find("1 of its answers met no dialog"), std::string::npos);
}

TEST_F(EditorScripts, EndAtTheFirstErrorAndNameItsLine)
{
	const auto [Status, Output] = Run("open\nprint tabs\ncommand ZEFTandemEditor.SetWeld\nprint tabs\n");
	EXPECT_EQ(Status, 1);
	EXPECT_NE(Output.find("script.txt:3: the command \"ZEFTandemEditor.SetWeld\" does nothing in this editor"),
		std::string::npos);
	EXPECT_EQ(Output.find("Viewport"), Output.rfind("Viewport"));
	EXPECT_NE(
		Run("command ZEFTandemEditor.Update\n").second.find("script.txt:1: the editor is not open; open it first"),
		std::string::npos);
	EXPECT_NE(Run("open\ncommand ZEFTandemEditor.SaveAsStaticMesh\n").second.find("is off now"), std::string::npos);
	EXPECT_NE(Run("open\nwait connected 0.2\n").second.find("no garment application came up within 0.2 s"),
		std::string::npos);
}
