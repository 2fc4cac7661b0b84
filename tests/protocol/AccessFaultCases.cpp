// SPDX-License-Identifier: MIT
// Faults of addresses, keys and recordings.
#include "FaultCases.h"
#include "RawPeer.h"
#include "Zef/Keys.h"
#include "Zef/Recording.h"

#include <fstream>

#include <unistd.h>

namespace LinkTest
{

namespace
{
using Zef::EFault;
using Zef::EFrame;

/** A file that this user does not own. */
std::string FileOfAnotherUser(const FTestFolder& Folder)
{
	if (geteuid() != 0)
	{
		return "/etc/passwd";
	}
	const std::string Path = Folder.Path + "/theirs.port";
	std::ofstream(Path) << "tcp://127.0.0.1:9\n";
	EXPECT_EQ(chown(Path.c_str(), 65534, 65534), 0);
	return Path;
}
} // namespace

std::vector<FFaultCase> AccessFaultCases()
{
	return {
		{"Requests", EFault::RateExceeded, "",
			[]
			{
				const FTestFolder Folder;
				Zef::FServerOptions Options;
				Options.Limits.MaxRequestsPerSecond = 1;
				FApplication Application(Folder.Socket(), Options);
				FRawEditor Editor(Folder.Socket());
				Editor.Greet();
				for (std::uint64_t Item = 1; Item <= 50; ++Item)
				{
					Editor.SendItem(Zef::EncodeEnable(true), Item);
				}
				Until(nullptr, &Application, [&] { return !Application.Faults.empty(); });
				return Application.Faults.empty() ? Zef::FLinkFault() : Application.Faults[0];
			}},
		{"FromApplication", EFault::RateExceeded, "",
			[]
			{
				const FTestFolder Folder;
				FRawApplication Application(Folder.Socket());
				Zef::FClientOptions Options = QuickClient();
				Options.Limits.MaxFaultsPerSecond = 1;
				FEditor Editor(Folder.Socket(), Options);
				Application.Welcome();
				for (int Count = 0; Count < 50; ++Count)
				{
					Application.Send({Zef::FBytes{1, 2, 3}, {}});
				}
				Until(&Editor, nullptr, [&] { return !Editor.Connections.empty() && !Editor.Connections.back(); });
				Editor.Poll();
				return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults.back();
			}},
		{"ByItsUser", EFault::Closing, "",
			[]
			{
				const FTestFolder Folder;
				auto Application = std::make_unique<FApplication>(Folder.Socket());
				FRawEditor Editor(Folder.Socket());
				Editor.Greet({1, 2, "raw editor", 16 << 20, 4 << 20});
				Application.reset();
				const std::vector<Zef::FBytes> Parts = Editor.ReceiveFrame(EFrame::Refused);
				const auto Refused = Parts.size() == 2 ? Zef::DecodeRefused(Parts[1]) : std::nullopt;
				return Refused ? Zef::MakeFault(Refused->Code, "", Refused->Sentence) : Zef::FLinkFault();
			}},
		{"ThatAreNotThere", EFault::KeysRefused, "",
			[] { return Zef::LoadKeys("/nowhere/keys", Zef::ELinkEnd::Editor).Fault(); }},
		{"ByTheFile", EFault::UserRefused, "",
			[]
			{
				const FTestFolder Folder;
				FEditor Editor("portfile:" + FileOfAnotherUser(Folder), QuickClient());
				Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); });
				return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults[0];
			}},
		{"ThatIsNotThere", EFault::BadRecording, "", [] { return Zef::ReadRecording("/nowhere/at.all").Fault(); }},
		{"WhereNoFileCanBe", EFault::RecordingStopped, "",
			[]
			{
				const FTestFolder Folder;
				Zef::FClientOptions Options = QuickClient();
				Options.RecordFile = "/nowhere/at.all";
				return FEditor(Folder.Socket(), Options).OpenFault;
			}},
	};
}

} // namespace LinkTest
