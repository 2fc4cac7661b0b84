// SPDX-License-Identifier: MIT
// The conversation with the garment application: requests, replies and the loss of the link.
#include "Editor/ZEFTandemEditor.h"

#include "Dialogs/Dialogs.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/ZEFTandemProgress.h"
#include "Internationalization/Internationalization.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/MessageDialog.h"
#include "ZEFTandemClientComponent.h"

#define LOCTEXT_NAMESPACE "ZEFTandemEditor"

namespace
{

constexpr int32 UpdateSteps = 5;

int32 ToKey(const ZefTandemCore::TandemObjectType& Type)
{
	return static_cast<int32>(Type);
}

/** False when the user cancels; a warning that was suppressed earlier counts as confirmed. */
bool ConfirmUpdate()
{
	FSuppressableWarningDialog::FSetupInfo Info(
		LOCTEXT("ZEFTandemUpdateWarningMessage",
			"Make sure to turn off simulation in ZEF\nMake sure to be in either Simulation Mode or UV Editor Mode in "
			"ZEF\nMake sure that no animation is being recorded in ZEF"),
		LOCTEXT("ZEFTandemUpdateWarningTitle", "Warning"), TEXT("ZEFTandem"), GEditorPerProjectIni);
	Info.ConfirmText = LOCTEXT("ZEFTandemUpdateWarningConfirm", "Ok");
	Info.CancelText = LOCTEXT("ZEFTandemUpdateWarningCancel", "Cancel");
	Info.CheckBoxText = LOCTEXT("ZEFTandemUpdateWarningCheckBox", "Don't ask me again");
	return FSuppressableWarningDialog(Info).ShowModal() != FSuppressableWarningDialog::Cancel;
}

} // namespace

void FZEFTandemEditor::RequestUpdate()
{
	// While the warning stands the user may close the editor.
	const TSharedRef<FZEFEditorToolkit> KeepAlive = AsShared();
	if (!ConfirmUpdate() || !IsHosted())
	{
		return;
	}
	CreateProgress(UpdateSteps, FText::FromString(TEXT("Update Requested")), true);
	bAvatarReceived = false;
	bGarmentReceived = false;
	UpdateProgress(FText::FromString(TEXT("Updating")), 1, -1);
	Client->SendData(
		ZefTandemCore::TandemMessage::RequestUpdate, ZefTandemCore::PackingOptions{bWeld, bUnifiedMaterial});
}

void FZEFTandemEditor::ToggleTandem()
{
	bTandemEnabled = !bTandemEnabled;
	Client->SendData(ZefTandemCore::TandemMessage::Enable, bTandemEnabled);
}

void FZEFTandemEditor::ToggleUnifiedMaterial()
{
	bUnifiedMaterial = !bUnifiedMaterial;
}

void FZEFTandemEditor::ToggleWeld()
{
	bWeld = !bWeld;
}

void FZEFTandemEditor::RequestAvailability()
{
	if (TandemTree->GetSelectedItems().Num() == 1)
	{
		Client->SendData(ZefTandemCore::TandemMessage::RequestAvailability);
	}
}

void FZEFTandemEditor::OnSurfaceMeshReceived(const ZefTandemCore::TandemObjectType& Type, const FZEFSurfaceMesh& Mesh)
{
	RemoveObjectsOfType(ToKey(Type));
	if (Type == ZefTandemCore::TandemObjectType::Garment)
	{
		bGarmentReceived = true;
		UpdateProgress(FText::FromString(TEXT("Creating Garment Component")), 2, -1);
	}
	else if (Type == ZefTandemCore::TandemObjectType::Avatar)
	{
		bAvatarReceived = true;
		UpdateProgress(FText::FromString(TEXT("Creating Avatar Component")), 2, -1);
	}
	if (!Mesh.Surfaces.IsEmpty())
	{
		AddObject(ToKey(Type), Mesh);
	}
	if (bAvatarReceived && bGarmentReceived)
	{
		DestroyProgress();
	}
	TandemTree->Refresh();
	TandemTree->DeselectAll();
}

void FZEFTandemEditor::OnJointAnimationReceived(
	const ZefTandemCore::TandemObjectType& /*Type*/, const FZEFJointAnimation& Animation)
{
	UpdateProgress(FText::FromString(TEXT("Create AnimSequence")), 2, -1);
	if (Animation.Sequence.Frames.IsEmpty())
	{
		FMessageDialog::Open(EAppMsgType::Ok,
			FText::FromString(TEXT("No joint animation is found in the source ZEF project.")),
			FText::FromString(TEXT("Joint Animation Import Error")));
		return;
	}
	DestroyProgress();
}

void FZEFTandemEditor::OnMeshSequenceReceived(const ZefTandemCore::TandemObjectType& /*Type*/,
	const FZEFSurfaceMesh& /*Mesh*/, const TArray<FZEFMeshSequenceFrame>& Frames)
{
	if (Frames.IsEmpty())
	{
		FMessageDialog::Open(EAppMsgType::Ok,
			FText::FromString(TEXT("No object animation is found in the source ZEF project.")),
			FText::FromString(TEXT("Geometric Cache Import Error")));
		return;
	}
	DestroyProgress();
}

void FZEFTandemEditor::OnAvailabilityReceived(const ZefTandemCore::TandemAvailability& InAvailability)
{
	Availability = InAvailability;
}

void FZEFTandemEditor::OnConnectionChanged(bool bConnected)
{
	if (bConnected)
	{
		return;
	}
	DestroyProgress();
	FMessageDialog::Open(
		EAppMsgType::Ok, FText::FromString(TEXT("There is no Tandem connection.\nPlease restart ZEF or KR.")));
}

bool FZEFTandemEditor::IsOneRowSelectedOfType(int32 ObjectType) const
{
	const TArray<TSharedPtr<IZEFTandemTreeItem>> Rows = TandemTree->GetSelectedItems();
	return Rows.Num() == 1 && Rows[0]->GetObjectType() == ObjectType;
}

bool FZEFTandemEditor::CanSaveAsStaticMesh() const
{
	return TandemTree->GetSelectedItems().Num() == 1;
}

bool FZEFTandemEditor::CanSaveAsSkeletalMesh() const
{
	return IsOneRowSelectedOfType(ToKey(ZefTandemCore::TandemObjectType::Avatar)) && Availability.bAvatarHasSkeleton;
}

bool FZEFTandemEditor::CanSaveAsGeometryCache() const
{
	return (IsOneRowSelectedOfType(ToKey(ZefTandemCore::TandemObjectType::Garment)) &&
			   Availability.bGarmentHasAnimation) ||
		   (IsOneRowSelectedOfType(ToKey(ZefTandemCore::TandemObjectType::Avatar)) && Availability.bAvatarHasAnimation);
}

bool FZEFTandemEditor::CanSaveAsAnimSequence() const
{
	return CanSaveAsSkeletalMesh() && Availability.bAvatarHasAnimation;
}

#undef LOCTEXT_NAMESPACE
