// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemProgress.h"
#include "Misc/ConfigCacheIni.h"
#include "Source/Editor/OpenEditorFixture.h"
#include "Source/SampleMeshes.h"
#include "ZEFTandemClientComponent.h"

#include <gtest/gtest.h>

using namespace SampleMeshes;
using ZefTandemCore::TandemObjectType;

namespace
{

class UpdateFlow : public FOpenEditorFixture
{
};

constexpr int32 Garment = 2;
constexpr int32 Avatar = 4;
constexpr int32 Prop = 16;

} // namespace

TEST_F(UpdateFlow, AsksBeforeAnUpdateInTheSystemsWords)
{
	Dialogs().AnswerSuppressable(false);
	Editor->RequestUpdate();

	ASSERT_EQ(Dialogs().Suppressables().size(), 1u);
	const Host::FSuppressableRequest& Asked = Dialogs().Suppressables()[0];
	EXPECT_EQ(Asked.Message.ToString(),
		FString(TEXT("Make sure to turn off simulation in ZEF\nMake sure to be in either Simulation Mode or UV Editor "
					 "Mode in ZEF\nMake sure that no animation is being recorded in ZEF")));
	EXPECT_EQ(Asked.Title.ToString(), FString(TEXT("Warning")));
	EXPECT_EQ(Asked.ConfirmText.ToString(), FString(TEXT("Ok")));
	EXPECT_EQ(Asked.CancelText.ToString(), FString(TEXT("Cancel")));
	EXPECT_EQ(Asked.CheckBoxText.ToString(), FString(TEXT("Don't ask me again")));
}

TEST_F(UpdateFlow, CancellingChangesNothing)
{
	Arrive(TandemObjectType::Garment, MakeRigid());
	Dialogs().AnswerSuppressable(false);
	Editor->RequestUpdate();

	EXPECT_EQ(GetCurrentProgress(), -1);
	EXPECT_EQ(Notifications().Log(), std::vector<std::string>());
	EXPECT_EQ(Editor->GetObjectComponents(Garment).Num(), 1);
}

TEST_F(UpdateFlow, ShowsProgressAndAToastThenSends)
{
	Editor->RequestUpdate();

	EXPECT_EQ(Notifications().Log(), (std::vector<std::string>{"start \"Update Requested\" 0/5",
										 "toast \"Update Requested\" 3s", "update \"Updating\" 1/5"}));
	EXPECT_EQ(GetCurrentProgress(), 1);
}

TEST_F(UpdateFlow, EndsWhenGarmentAndAvatarHaveBothArrivedInEitherOrder)
{
	for (const bool bGarmentFirst : {true, false})
	{
		SCOPED_TRACE(bGarmentFirst);
		Editor->RequestUpdate();
		Arrive(bGarmentFirst ? TandemObjectType::Garment : TandemObjectType::Avatar,
			bGarmentFirst ? MakeRigid() : MakeSkinned());
		EXPECT_EQ(GetCurrentProgress(), 2);
		Arrive(TandemObjectType::Prop, MakeRigid());
		EXPECT_EQ(GetCurrentProgress(), 2);
		Arrive(bGarmentFirst ? TandemObjectType::Avatar : TandemObjectType::Garment,
			bGarmentFirst ? MakeSkinned() : MakeRigid());
		EXPECT_EQ(GetCurrentProgress(), -1);
	}
}

TEST_F(UpdateFlow, NamesWhatItCreates)
{
	Editor->RequestUpdate();
	Notifications().Clear();
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	Arrive(TandemObjectType::Outfit, MakeRigid());
	Arrive(TandemObjectType::Garment, MakeRigid());

	EXPECT_EQ(Notifications().Log(), (std::vector<std::string>{"update \"Creating Avatar Component\" 2/5",
										 "update \"Creating Garment Component\" 2/5", "cancel"}));
}

TEST_F(UpdateFlow, AnEmptyGarmentClearsGarmentsAndCountsAsSeen)
{
	Arrive(TandemObjectType::Garment, MakeRigid());
	Editor->RequestUpdate();
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	Arrive(TandemObjectType::Garment, FZEFSurfaceMesh());

	EXPECT_EQ(Editor->GetObjectComponents(Garment).Num(), 0);
	EXPECT_EQ(GetCurrentProgress(), -1);
}

TEST_F(UpdateFlow, ASecondPressReplacesTheProgressAndResetsBothFlags)
{
	Editor->RequestUpdate();
	Arrive(TandemObjectType::Garment, MakeRigid());
	Notifications().Clear();
	Editor->RequestUpdate();

	EXPECT_EQ(Notifications().Log(), (std::vector<std::string>{"cancel", "start \"Update Requested\" 0/5",
										 "toast \"Update Requested\" 3s", "update \"Updating\" 1/5"}));
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	EXPECT_EQ(GetCurrentProgress(), 2);
}

TEST_F(UpdateFlow, SuppressedWarningsPassStraightOn)
{
	Dialogs().AnswerSuppressable(true, true);
	Editor->RequestUpdate();
	Editor->RequestUpdate();

	EXPECT_EQ(Dialogs().Suppressables().size(), 1u);
	EXPECT_EQ(GetCurrentProgress(), 1);
	bool bSuppressed = false;
	EXPECT_TRUE(GConfig->GetBool(TEXT("SuppressableDialogs"), TEXT("ZEFTandem"), bSuppressed, GEditorPerProjectIni));
	EXPECT_TRUE(bSuppressed);
}

TEST_F(UpdateFlow, RepeatsItsStateEveryHalfSecond)
{
	// Not an update: with nobody on the link, its loss may end that at any tick.
	CreateProgress(5, FText::FromString(TEXT("Update Requested")), false);
	UpdateProgress(FText::FromString(TEXT("Updating")), 1, -1);
	Notifications().Clear();
	Tick(0.4);
	EXPECT_EQ(Notifications().Log().size(), 0u);
	Tick(0.2);
	EXPECT_EQ(Notifications().Log(), (std::vector<std::string>{"update \"Updating\" 1/5"}));
}

TEST_F(UpdateFlow, StopsByItselfWhenAllStepsAreDone)
{
	CreateProgress(2, FText::FromString(TEXT("Work")), false);
	UpdateProgress(FText::GetEmpty(), 2, -1);
	Notifications().Clear();
	Tick(0.6);

	EXPECT_EQ(Notifications().Log(), (std::vector<std::string>{"cancel"}));
	EXPECT_EQ(GetCurrentProgress(), 2);
	DestroyProgress();
	EXPECT_EQ(GetCurrentProgress(), -1);
}

TEST_F(UpdateFlow, UpdateProgressKeepsWhatIsNotGiven)
{
	UpdateProgress(FText::FromString(TEXT("Nothing runs")), 1, 1);
	EXPECT_EQ(Notifications().Log().size(), 0u);

	CreateProgress(4, FText::FromString(TEXT("Work")), false);
	UpdateProgress(FText::GetEmpty(), -1, 7);
	UpdateProgress(FText::FromString(TEXT("More")), 3, -1);

	EXPECT_EQ(Notifications().Log(),
		(std::vector<std::string>{"start \"Work\" 0/4", "update \"Work\" 0/7", "update \"More\" 3/7"}));
	EXPECT_EQ(GetCurrentProgress(), 3);
}

TEST_F(UpdateFlow, LinkLossEndsTheProgressWithADialogAndKeepsTheObjects)
{
	Arrive(TandemObjectType::Garment, MakeRigid());
	Editor->ToggleTandem();
	Editor->RequestUpdate();
	Client->OnConnectionChanged.Broadcast(false);

	EXPECT_EQ(GetCurrentProgress(), -1);
	ASSERT_EQ(Dialogs().Messages().size(), 1u);
	EXPECT_EQ(Dialogs().Messages()[0].Message.ToString(),
		FString(TEXT("There is no Tandem connection.\nPlease restart ZEF or KR.")));
	EXPECT_TRUE(Dialogs().Messages()[0].Title.IsEmpty());
	EXPECT_EQ(Dialogs().Messages()[0].Type, EAppMsgType::Ok);
	EXPECT_EQ(Editor->GetObjectComponents(Garment).Num(), 1);
	EXPECT_TRUE(Editor->IsTandemEnabled());
}

TEST_F(UpdateFlow, LinkComingUpChangesNothing)
{
	Editor->RequestUpdate();
	Client->OnConnectionChanged.Broadcast(true);

	EXPECT_EQ(GetCurrentProgress(), 1);
	EXPECT_EQ(Dialogs().Messages().size(), 0u);
}

TEST_F(UpdateFlow, LinkLossLeavesTheReceivedFlags)
{
	Editor->RequestUpdate();
	Arrive(TandemObjectType::Garment, MakeRigid());
	Client->OnConnectionChanged.Broadcast(false);
	CreateProgress(5, FText::FromString(TEXT("Later")), false);
	Arrive(TandemObjectType::Avatar, MakeSkinned());

	EXPECT_EQ(GetCurrentProgress(), -1);
}

TEST_F(UpdateFlow, EmptyJointAnimationIsADialogAndLeavesTheProgress)
{
	CreateProgress(5, FText::FromString(TEXT("Saving")), false);
	Client->OnJointAnimationReceived.Broadcast(TandemObjectType::Avatar, FZEFJointAnimation());

	ASSERT_EQ(Dialogs().Messages().size(), 1u);
	EXPECT_EQ(Dialogs().Messages()[0].Title.ToString(), FString(TEXT("Joint Animation Import Error")));
	EXPECT_EQ(Dialogs().Messages()[0].Message.ToString(),
		FString(TEXT("No joint animation is found in the source ZEF project.")));
	EXPECT_EQ(GetCurrentProgress(), 2);
}

TEST_F(UpdateFlow, EmptyMeshSequenceIsADialogAndLeavesTheProgress)
{
	CreateProgress(5, FText::FromString(TEXT("Saving")), false);
	Client->OnMeshSequenceReceived.Broadcast(
		TandemObjectType::Garment, FZEFSurfaceMesh(), TArray<FZEFMeshSequenceFrame>());

	ASSERT_EQ(Dialogs().Messages().size(), 1u);
	EXPECT_EQ(Dialogs().Messages()[0].Title.ToString(), FString(TEXT("Geometric Cache Import Error")));
	EXPECT_EQ(Dialogs().Messages()[0].Message.ToString(),
		FString(TEXT("No object animation is found in the source ZEF project.")));
	EXPECT_EQ(GetCurrentProgress(), 0);
}

TEST_F(UpdateFlow, SaveCommandsFollowSelectionAndAvailability)
{
	Arrive(TandemObjectType::Garment, MakeRigid());
	Arrive(TandemObjectType::Avatar, MakeSkinned());
	Arrive(TandemObjectType::Prop, MakeRigid());
	EXPECT_FALSE(Editor->CanSaveAsStaticMesh());

	Select({Editor->GetObjectComponents(Avatar)[0]});
	EXPECT_TRUE(Editor->CanSaveAsStaticMesh());
	EXPECT_FALSE(Editor->CanSaveAsSkeletalMesh());
	EXPECT_FALSE(Editor->CanSaveAsGeometryCache());

	ZefTandemCore::TandemAvailability Flags;
	Flags.bAvatarHasSkeleton = true;
	Client->OnAvailabilityReceived.Broadcast(Flags);
	EXPECT_TRUE(Editor->CanSaveAsSkeletalMesh());
	EXPECT_FALSE(Editor->CanSaveAsAnimSequence());

	Flags.bAvatarHasAnimation = true;
	Client->OnAvailabilityReceived.Broadcast(Flags);
	EXPECT_TRUE(Editor->CanSaveAsAnimSequence());
	EXPECT_TRUE(Editor->CanSaveAsGeometryCache());

	Select({Editor->GetObjectComponents(Garment)[0]});
	EXPECT_FALSE(Editor->CanSaveAsGeometryCache());
	EXPECT_FALSE(Editor->CanSaveAsSkeletalMesh());
	Flags.bGarmentHasAnimation = true;
	Client->OnAvailabilityReceived.Broadcast(Flags);
	EXPECT_TRUE(Editor->CanSaveAsGeometryCache());

	Select({Editor->GetObjectComponents(Prop)[0]});
	EXPECT_TRUE(Editor->CanSaveAsStaticMesh());
	EXPECT_FALSE(Editor->CanSaveAsGeometryCache());

	Select({Editor->GetObjectComponents(Garment)[0], Editor->GetObjectComponents(Avatar)[0]});
	EXPECT_FALSE(Editor->CanSaveAsStaticMesh());
	EXPECT_FALSE(Editor->CanSaveAsAnimSequence());
}
