// SPDX-License-Identifier: MIT
#include "Editor/ZEFTandemEditorModule.h"

#include "Editor/ZEFTandemEditor.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FZEFTandemEditorModule, ZEFTandemEditor)

void FZEFTandemEditorModule::StartupModule()
{
	FModuleManager::Get().LoadModuleChecked(TEXT("AdvancedPreviewScene"));
	FModuleManager::Get().LoadModuleChecked(TEXT("PropertyEditor"));
}

TSharedPtr<IZEFTandemEditor> FZEFTandemEditorModule::GetEditor()
{
	return Editor.Pin();
}

FZEFTandemEditorModule::FOnEditorCreated& FZEFTandemEditorModule::GetOnEditorCreated()
{
	return OnEditorCreated;
}

bool FZEFTandemEditorModule::IsEditorOpen() const
{
	return Editor.IsValid();
}

TSharedPtr<IZEFTandemEditor> FZEFTandemEditorModule::CreateEditor()
{
	if (const TSharedPtr<IZEFTandemEditor> Open = Editor.Pin())
	{
		return Open;
	}
	const TSharedPtr<FZEFTandemEditor> NewEditor = MakeShareable(new FZEFTandemEditor());
	Editor = NewEditor;
	NewEditor->OnEditorClosed().AddLambda([this] { Editor.Reset(); });
	NewEditor->Initialize(nullptr);
	return NewEditor;
}
