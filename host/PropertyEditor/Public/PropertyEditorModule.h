// SPDX-License-Identifier: MIT
// Makes details views.
#pragma once

#include "CoreMinimal.h"
#include "DetailsViewArgs.h"
#include "Modules/ModuleInterface.h"

class IDetailsView;

/** Loaded by the name "PropertyEditor". */
class FPropertyEditorModule : public IModuleInterface
{
public:
	virtual TSharedRef<IDetailsView> CreateDetailView(const FDetailsViewArgs& DetailsViewArgs);
};
