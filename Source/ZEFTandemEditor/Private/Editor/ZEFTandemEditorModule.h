// SPDX-License-Identifier: MIT
/** Entry of the editor module: its place in the level editor, and the one editor instance. */
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "Editor/ZEFExtensibilityManager.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"

class FUICommandList;
class IZEFTandemEditor;

class FZEFTandemEditorModule : public IModuleInterface,
							   public IHasZEFMenuExtensibility,
							   public IHasZEFToolBarExtensibility,
							   public IHasZEFSecondaryToolBarExtensibility
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnEditorCreated, const TSharedRef<IZEFTandemEditor>&);

	// IModuleInterface
	virtual void StartupModule() override;
	/** Leaves the style, the commands and an open editor instance as they are. */
	virtual void ShutdownModule() override;

	/** The open instance; empty when none is open. */
	virtual TSharedPtr<IZEFTandemEditor> GetEditor();

	/** Broadcast at the end of every instance's initialisation. */
	virtual FOnEditorCreated& GetOnEditorCreated();

	virtual bool IsEditorOpen() const;

	/** The open instance, or a new one. The module does not keep it alive. */
	virtual TSharedPtr<IZEFTandemEditor> CreateEditor();

	// Empty after the module was shut down
	virtual TSharedPtr<FZEFExtensibilityManager> GetMenuExtensibilityManager() override;
	virtual TSharedPtr<FZEFExtensibilityManager> GetToolBarExtensibilityManager() override;
	virtual TSharedPtr<FZEFExtensibilityManager> GetSecondaryToolBarExtensibilityManager() override;

	/** Opens an editor instance, or brings the open one to the front. */
	void PluginButtonClicked();

private:
	void RegisterMenus();

	TSharedPtr<FUICommandList> PluginCommands;
	FOnEditorCreated OnEditorCreated;
	TSharedPtr<FZEFExtensibilityManager> MenuExtensibilityManager;
	TSharedPtr<FZEFExtensibilityManager> ToolBarExtensibilityManager;
	TSharedPtr<FZEFExtensibilityManager> SecondaryToolBarExtensibilityManager;
	TWeakPtr<IZEFTandemEditor> Editor;
};
