// SPDX-License-Identifier: MIT
/** Entry of the editor module: opens the one editor instance. */
#pragma once

#include "CoreMinimal.h"
#include "Delegates/DelegateCombinations.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"

class IZEFTandemEditor;

class FZEFTandemEditorModule : public IModuleInterface
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnEditorCreated, const TSharedRef<IZEFTandemEditor>&);

	virtual void StartupModule() override;

	/** The open instance; empty when none is open. */
	virtual TSharedPtr<IZEFTandemEditor> GetEditor();

	virtual FOnEditorCreated& GetOnEditorCreated();

	virtual bool IsEditorOpen() const;

	/** The open instance, or a new one. The module does not keep it alive. */
	virtual TSharedPtr<IZEFTandemEditor> CreateEditor();

private:
	FOnEditorCreated OnEditorCreated;
	TWeakPtr<IZEFTandemEditor> Editor;
};
