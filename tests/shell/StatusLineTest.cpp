// SPDX-License-Identifier: MIT
#include "StatusLine.h"

#include "LinkDoctor.h"
#include "Zef/Diagnosis.h"
#include "protocol/LinkFixture.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{
using namespace Host;
using namespace LinkTest;

TEST(StatusLine, TellsTheChannelsAddressWhileNoEditorIsOpen)
{
	setenv("ZEF_TANDEM_ENDPOINT", "ipc:///tmp/zef-nobody-here.sock", 1);
	const FLinkLine Line = DescribeLink();
	unsetenv("ZEF_TANDEM_ENDPOINT");
	EXPECT_EQ(Line.Address, "ipc:///tmp/zef-nobody-here.sock");
	EXPECT_EQ(Line.Light, FLinkLine::ELight::Off);
	EXPECT_EQ(Line.State, "not looking: no editor is open");
}

TEST(StatusLine, SaysWhatToStartWhenThereIsNoGarmentApplication)
{
	const FTestFolder Folder;
	FEditor Editor(Folder.Socket(), QuickClient());
	FStatusLine Status;
	ASSERT_TRUE(Until(&Editor, nullptr,
		[&]
		{
			Status.Follow();
			return Status.Line().Light == FLinkLine::ELight::Bad;
		}));
	EXPECT_EQ(Status.Line().Address.toStdString(), Folder.Socket());
	EXPECT_TRUE(Status.Line().State.contains("zef-peer serve")) << Status.Line().State.toStdString();
	EXPECT_TRUE(Status.findChild<QLabel*>("LinkState")->accessibleName().startsWith("Link: no garment application"));
}

TEST(StatusLine, SaysWhatTheDoctorFinds)
{
	const FTestFolder Folder;
	std::ofstream(Folder.Path + "/test.sock") << "no socket";
	FEditor Editor(Folder.Socket(), QuickClient());
	FStatusLine Status;
	Zef::FDiagnosisOptions Options;
	Options.Endpoint = Folder.Socket();
	const Zef::FLinkReason Found = Zef::Diagnose(Options).Reason();
	ASSERT_TRUE(Found);
	EXPECT_TRUE(Until(&Editor, nullptr,
		[&]
		{
			Status.Follow();
			return Status.Line().Advice.toStdString() == Zef::ToString(Found);
		}))
		<< Status.Line().Advice.toStdString();
}

TEST(StatusLine, DoctorForgetsWhatItFoundWhenTheAddressIsAnother)
{
	const FTestFolder Folder;
	FLinkDoctor Doctor;
	ASSERT_TRUE(Until(nullptr, nullptr, [&] { return bool(Doctor.Ask(Folder.Socket("nobody"), "Tandem")); }));
	EXPECT_EQ(Doctor.Ask(Folder.Socket("nobody"), "Tandem").Kind, Zef::ELinkReason::NobodyServes);
	const FApplication Application(Folder.Socket("peer"));
	EXPECT_FALSE(Doctor.Ask(Folder.Socket("peer"), "Tandem"));
}

TEST(StatusLine, NamesTheGarmentApplicationThatIsThere)
{
	const FTestFolder Folder;
	Zef::FServerOptions Options;
	Options.Program = "garments 7";
	FApplication Application(Folder.Socket(), Options);
	FEditor Editor(Folder.Socket(), QuickClient());
	ASSERT_TRUE(Until(&Editor, &Application, [] { return DescribeLink().Light == FLinkLine::ELight::Good; }));
	EXPECT_TRUE(DescribeLink().State.contains("garments 7")) << DescribeLink().State.toStdString();
}
} // namespace
