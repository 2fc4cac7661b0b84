// SPDX-License-Identifier: MIT
// What an open editor asks of a garment application, over the real link.
#include "Editor/ZEFTandemEditorCommands.h"
#include "Framework/Commands/UICommandList.h"
#include "Source/Editor/OpenEditorFixture.h"
#include "Source/SampleMeshes.h"
#include "TemporaryFolder.h"
#include "Zef/Address.h"
#include "protocol/LinkFixture.h"

#include <gtest/gtest.h>

using namespace SampleMeshes;
using ZefTandemCore::TandemObjectType;

namespace
{

class EditorOnTheLink : public FOpenEditorFixture
{
protected:
	void SetUp() override
	{
		FOpenEditorFixture::SetUp();
		Close();
		const std::string Endpoint = "ipc://" + (Folder / "t.sock");
		setenv(Zef::EndpointVariable, Endpoint.c_str(), 1);
		Application = std::make_unique<LinkTest::FApplication>(Endpoint);
		FZEFTandemEditorModule& Module =
			FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
		Editor = StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
		Client = Editor->GetClient();
		ASSERT_TRUE(Until([this] { return Application->Connected > 0; }));
	}

	void TearDown() override
	{
		FOpenEditorFixture::TearDown();
		Application.reset();
		unsetenv(Zef::EndpointVariable);
	}

	bool Until(const std::function<bool()>& Done)
	{
		const auto Deadline = std::chrono::steady_clock::now() + LinkTest::Patience;
		while (!Done())
		{
			if (std::chrono::steady_clock::now() > Deadline)
			{
				return false;
			}
			Application->Poll(std::chrono::milliseconds(1));
			Tick(0.01);
		}
		return true;
	}

	/** Everything that was sent so far has come: message 0 goes behind it in the same order. */
	void Flush()
	{
		const std::size_t Before = Application->Enables.size();
		Editor->ToggleTandem();
		ASSERT_TRUE(Until([&] { return Application->Enables.size() == Before + 1; }));
	}

	FTemporaryFolder Folder;
	std::unique_ptr<LinkTest::FApplication> Application;
};

} // namespace

TEST_F(EditorOnTheLink, AsksForNothingByItself)
{
	Flush();

	EXPECT_EQ(Application->Updates.size(), 0u);
	EXPECT_EQ(Application->Availabilities, 0);
	EXPECT_EQ(Application->AnimationInfos.size(), 0u);
}

TEST_F(EditorOnTheLink, SendsItsPackingOptionsWithAnUpdate)
{
	Editor->RequestUpdate();
	Editor->GetToolkitCommands()->ExecuteAction(FZEFTandemEditorCommands::Get().SetUnifiedMaterial.ToSharedRef());
	Editor->RequestUpdate();
	ASSERT_TRUE(Until([&] { return Application->Updates.size() == 2; }));

	EXPECT_TRUE((Application->Updates[0] == Zef::FPackingOptions{false, false}));
	EXPECT_TRUE((Application->Updates[1] == Zef::FPackingOptions{false, true}));
}

TEST_F(EditorOnTheLink, SendsNothingWhenTheWarningIsCancelled)
{
	Dialogs().AnswerSuppressable(false);
	Editor->RequestUpdate();
	Flush();

	EXPECT_EQ(Application->Updates.size(), 0u);
}

TEST_F(EditorOnTheLink, TellsTheNewStateOfTheToggle)
{
	Editor->ToggleTandem();
	Editor->ToggleTandem();
	ASSERT_TRUE(Until([&] { return Application->Enables.size() == 2; }));

	EXPECT_EQ(Application->Enables, (std::vector<bool>{true, false}));
	EXPECT_FALSE(Editor->IsTandemEnabled());
}

TEST_F(EditorOnTheLink, AsksForTheFlagsWithExactlyOneRowSelected)
{
	Arrive(TandemObjectType::Garment, MakeRigid());
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	UPrimitiveComponent* const Garment = Editor->GetObjectComponents(2)[0];
	UPrimitiveComponent* const Avatar = Editor->GetObjectComponents(4)[0];

	Editor->RequestAvailability();
	Select({Garment, Avatar});
	Editor->RequestAvailability();
	Flush();
	EXPECT_EQ(Application->Availabilities, 0);

	Select({Avatar});
	Editor->RequestAvailability();
	ASSERT_TRUE(Until([&] { return Editor->CanSaveAsAnimSequence(); }));
	EXPECT_EQ(Application->Availabilities, 1);
}
