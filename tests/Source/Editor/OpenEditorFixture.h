// SPDX-License-Identifier: MIT
/** An open editor instance around each test, with no garment application anywhere. */
#pragma once

#include "Components/PrimitiveComponent.h"
#include "Editor/Widgets/TandemTree/IZEFTandemTree.h"
#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Editor/ZEFTandemProgress.h"
#include "EngineFixture.h"
#include "Modules/ModuleManager.h"
#include "ZEFTandemClientComponent.h"

#include <cstdlib>

class FOpenEditorFixture : public FEngineFixture
{
protected:
	void SetUp() override
	{
		// Nobody serves this endpoint, and the channel's own one is left to the user.
		setenv("ZEF_TANDEM_ENDPOINT", ("ipc://" + ::testing::TempDir() + "zef-nobody.sock").c_str(), 1);
		FEngineFixture::SetUp();
		FZEFTandemEditorModule& Module =
			FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
		Editor = StaticCastSharedPtr<FZEFTandemEditor>(Module.CreateEditor());
		Client = Editor->GetClient();
	}

	void TearDown() override
	{
		DestroyProgress();
		Close();
		FEngineFixture::TearDown();
	}

	void Close()
	{
		Client = nullptr;
		if (Editor.IsValid())
		{
			Editor->CloseWindow();
		}
		Editor.Reset();
	}

	/** What the link does when an object has arrived. */
	void Arrive(ZefTandemCore::TandemObjectType Type, const FZEFSurfaceMesh& Mesh)
	{
		Client->OnSurfaceMeshReceived.Broadcast(Type, Mesh);
	}

	/** What the user does in the tree. */
	void Select(const TArray<UPrimitiveComponent*>& Components)
	{
		Editor->GetTandemTree()->SelectItemsBy([&Components](const IZEFTandemTreeItem& Item)
			{ return Components.Contains(Item.GetPreviewSceneComponent()); });
	}

	TSharedPtr<FZEFTandemEditor> Editor;
	UZEFTandemClientComponent* Client = nullptr;
};
