// SPDX-License-Identifier: MIT
#include "FaultCases.h"
#include "RawPeer.h"

#include <sys/stat.h>

namespace LinkTest
{

namespace
{
using Zef::EFault;
using Zef::EFrame;
using Zef::EObjectType;

/** The editor's report on what a greeted application sends. */
std::function<Zef::FLinkFault()> FromApplication(std::function<void(FRawApplication&)> Misbehave)
{
	return [Misbehave = std::move(Misbehave)]
	{
		const FTestFolder Folder;
		FRawApplication Application(Folder.Socket());
		Zef::FClientOptions Options = QuickClient();
		Options.StallTime = std::chrono::milliseconds(30);
		FEditor Editor(Folder.Socket(), Options);
		Application.Welcome();
		Misbehave(Application);
		Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); });
		EXPECT_EQ(Editor.Faults.size(), 1u);
		return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults[0];
	};
}

/** The application's report on what an editor sends. */
std::function<Zef::FLinkFault()> FromEditor(
	std::function<void(FRawEditor&)> Misbehave, const Zef::FServerOptions& Options = {})
{
	return [Misbehave = std::move(Misbehave), Options]
	{
		const FTestFolder Folder;
		FApplication Application(Folder.Socket(), Options);
		FRawEditor Editor(Folder.Socket());
		Misbehave(Editor);
		Until(nullptr, &Application, [&] { return !Application.Faults.empty(); });
		EXPECT_EQ(Application.Faults.size(), 1u);
		return Application.Faults.empty() ? Zef::FLinkFault() : Application.Faults[0];
	};
}

Zef::FServerOptions OneClient()
{
	Zef::FServerOptions Options;
	Options.Limits.MaxClients = 1;
	return Options;
}
} // namespace

std::vector<FFaultCase> EndpointFaultCases()
{
	return {
		{"FromApplication", EFault::BadPrefix, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send({Zef::FBytes{1, 2, 3}, {}});
				})},
		{"FromEditor", EFault::BadPrefix, "",
			FromEditor(
				[](FRawEditor& End)
				{
					End.Greet();
					End.Send({Zef::FBytes(24, 'x'), {}});
				})},
		{"CreditForNothing", EFault::BadPrefix, "",
			FromApplication([](FRawApplication& End) { End.Send({Prefix(EFrame::Credit, 0, 1)}); })},
		{"OneOfTwo", EFault::PartCount, "",
			FromApplication([](FRawApplication& End) { End.Send({Prefix(EFrame::Item, 1)}); })},
		{"ThreeOfTwo", EFault::PartCount, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send({Prefix(EFrame::Item, 1), Zef::EncodeAvailability({}).Header, {}});
				})},
		{"Hundreds", EFault::PartCount, "",
			FromEditor(
				[](FRawEditor& End)
				{
					End.Greet();
					End.Send({Prefix(EFrame::Item, 1), {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}});
				})},
		{"CreditWithABody", EFault::PartCount, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send({Prefix(EFrame::Credit), {}});
				})},
		{"Unknown", EFault::UnknownFrame, "",
			FromApplication(
				[](FRawApplication& End)
				{
					Zef::FBytes Bytes = Prefix(EFrame::Item, 1);
					Bytes[4] = 99;
					End.Send({Bytes, {}});
				})},
		{"SecondWelcome", EFault::UnknownFrame, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send({Prefix(EFrame::Welcome), Zef::EncodeWelcome({1, "", 16 << 20, 4 << 20})});
				})},
		{"HelloFromTheApplication", EFault::UnknownFrame, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send({Prefix(EFrame::Hello), Zef::EncodeHello({1, 1, "", 16 << 20, 4 << 20})});
				})},
		{"NoMorePieces", EFault::Stalled, "",
			FromApplication(
				[](FRawApplication& End) {
					End.Send(
						{Prefix(EFrame::Item, 1), Zef::EncodeSurfaceMesh(EObjectType::Avatar, SampleMesh()).Header});
				})},
		{"OfTheApplication", EFault::WindowOverrun, "",
			[]
			{
				const FTestFolder Folder;
				FRawApplication Application(Folder.Socket());
				Zef::FClientOptions Options = QuickClient();
				Options.Limits.WindowBytes = 1000;
				Options.Limits.MaxItemBytes = 1; // the first item that waits holds all credit back
				FEditor Editor(Folder.Socket(), Options);
				Application.Welcome();
				for (std::uint64_t Item = 1; Item <= 100; ++Item)
				{
					Application.SendItem(Zef::EncodeAvailability({}), Item);
				}
				// Nothing is polled meanwhile: polling gives credit.
				const std::vector<Zef::FBytes> Next = Application.ReceiveFrame(EFrame::Hello);
				Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); });
				EXPECT_LT(Editor.Availabilities.size(), 100u);
				return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults[0];
			}},
		{"OfTheEditor", EFault::WindowOverrun, "",
			[]
			{
				const FTestFolder Folder;
				Zef::FServerOptions Options;
				Options.Limits.WindowBytes = 1000;
				Options.Limits.MaxItemBytes = 1;
				FApplication Application(Folder.Socket(), Options);
				FRawEditor Editor(Folder.Socket());
				Editor.Greet();
				for (std::uint64_t Item = 1; Item <= 100; ++Item)
				{
					Editor.SendItem(Zef::EncodeEnable(true), Item);
				}
				const std::vector<Zef::FBytes> Refused = Editor.ReceiveFrame(EFrame::Refused);
				Until(nullptr, &Application, [&] { return !Application.Faults.empty() && Application.Gone == 1; });
				EXPECT_LT(Application.Enables.size(), 100u);
				return Application.Faults.empty() ? Zef::FLinkFault() : Application.Faults[0];
			}},

		{"OfTheEditor", EFault::VersionUnknown, "",
			FromEditor(
				[](FRawEditor& End) {
					End.Greet({7, 9, "from the future", 16 << 20, 4 << 20});
				})},
		{"OfTheApplication", EFault::VersionUnknown, "",
			[]
			{
				const FTestFolder Folder;
				FRawApplication Application(Folder.Socket());
				FEditor Editor(Folder.Socket(), QuickClient());
				Application.Welcome({7, "from the future", 16 << 20, 4 << 20});
				Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); });
				return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults[0];
			}},
		{"RequestFirst", EFault::NotGreeted, "",
			FromEditor([](FRawEditor& End) { End.SendItem(Zef::EncodeEnable(true), 1); })},
		{"NoiseFirst", EFault::NotGreeted, "", FromEditor([](FRawEditor& End) { End.Send({Zef::FBytes(1000, 'x')}); })},
		{"Noise", EFault::BadHello, "",
			FromEditor(
				[](FRawEditor& End) {
					End.Send({Prefix(EFrame::Hello), Zef::FBytes(40, 0xff)});
				})},
		{"Twice", EFault::BadHello, "",
			FromEditor(
				[](FRawEditor& End)
				{
					End.Greet();
					End.Greet();
				})},
		{"AnswerOfNoPeer", EFault::BadHello, "",
			[]
			{
				const FTestFolder Folder;
				FRawApplication Application(Folder.Socket());
				FEditor Editor(Folder.Socket(), QuickClient());
				Application.ReceiveFrame(EFrame::Hello);
				Application.Send({Zef::FBytes{'H', 'T', 'T', 'P'}});
				Until(&Editor, nullptr, [&] { return !Editor.Faults.empty(); });
				return Editor.Faults.empty() ? Zef::FLinkFault() : Editor.Faults[0];
			}},
		{"Second", EFault::TooManyClients, "",
			[]
			{
				const FTestFolder Folder;
				FApplication Application(Folder.Socket(), OneClient());
				FEditor First(Folder.Socket(), QuickClient());
				Until(&First, &Application, [&] { return Application.Connected == 1; });
				FEditor Second(Folder.Socket(), QuickClient());
				Until(&Second, &Application, [&] { return !Second.Faults.empty(); });
				return Second.Faults.empty() ? Zef::FLinkFault() : Second.Faults[0];
			}},

		{"WhileSending", EFault::PeerLost, "",
			[]
			{
				const FTestFolder Folder;
				FApplication Application(Folder.Socket());
				Zef::FLinkFault Fault;
				Application.Server->SendSurfaceMesh(1, EObjectType::Avatar, SampleMesh(), &Fault);
				return Fault;
			}},
		{"Remote", EFault::AddressRefused, "",
			[] { return Zef::FServerEndpoint::OpenEndpoint("tcp://0.0.0.0:5555").Fault(); }},
		{"RemoteForTheEditor", EFault::AddressRefused, "",
			[]
			{
				return Zef::FClientEndpoint::OpenEndpoint(
					"tcp://example.org:5555", std::make_shared<Zef::FRecordFactory>())
					.Fault();
			}},
		{"Twice", EFault::AddressTaken, "",
			[]
			{
				const FTestFolder Folder;
				const FApplication First(Folder.Socket());
				return Zef::FServerEndpoint::OpenEndpoint(Folder.Socket()).Fault();
			}},
		{"ByAnApplicationThatKnowsNoLock", EFault::AddressTaken, "",
			[]
			{
				const FTestFolder Folder;
				const FRawApplication First(Folder.Socket());
				return Zef::FServerEndpoint::OpenEndpoint(Folder.Socket()).Fault();
			}},
		{"ToldByThePeer", EFault::PeerFailed, "/Project",
			[]
			{
				const FTestFolder Folder;
				FApplication Application(Folder.Socket());
				FEditor Editor(Folder.Socket(), QuickClient());
				Until(&Editor, &Application, [&] { return Application.Connected == 1; });
				Application.Server->SendFault(
					Application.LastClient, Zef::MakeFault(EFault::PeerFailed, "/Project", "There is no project."));
				Until(&Editor, &Application, [&] { return !Editor.FaultsOfPeer.empty(); });
				return Editor.FaultsOfPeer.empty() ? Zef::FLinkFault() : Editor.FaultsOfPeer[0];
			}},
	};
}

} // namespace LinkTest
