// SPDX-License-Identifier: MIT

#include "Framework/Docking/LayoutService.h"

#include "Docking/LayoutText.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"

DEFINE_LOG_CATEGORY_STATIC(LogLayoutService, Log, All);

namespace
{
const TCHAR* const LayoutSection = TEXT("EditorLayouts");
} // namespace

TSharedRef<FTabManager::FLayout> FLayoutSaveRestore::LoadFromConfig(const FString& InConfigFileName,
	const TSharedRef<FTabManager::FLayout>& InDefaultLayout, const EOutputCanBeNullptr InPrimaryAreaOutputCanBeNullptr)
{
	const FString Name = InDefaultLayout->GetLayoutName().ToString();
	FString Text;
	if (!GConfig || !GConfig->GetString(LayoutSection, *Name, Text, InConfigFileName))
	{
		return InDefaultLayout;
	}
	FString Error;
	const TSharedPtr<FTabManager::FLayout> Saved = FLayoutText::Read(Text, Error);
	if (Saved.IsValid() && Saved->GetLayoutName() != InDefaultLayout->GetLayoutName())
	{
		Error = FString::Printf(TEXT("it is that of '%s'"), *Saved->GetLayoutName().ToString());
	}
	else if (Saved.IsValid() && InPrimaryAreaOutputCanBeNullptr == EOutputCanBeNullptr::Never &&
			 InDefaultLayout->GetPrimaryArea().IsValid() && !Saved->GetPrimaryArea().IsValid())
	{
		Error = TEXT("it has no primary area");
	}
	if (Error.IsEmpty())
	{
		return Saved.ToSharedRef();
	}
	UE_LOG(LogLayoutService, Warning, TEXT("The saved layout '%s' in '%s' is not used, the default is: %s"), *Name,
		*InConfigFileName, *Error);
	return InDefaultLayout;
}

void FLayoutSaveRestore::SaveToConfig(
	const FString& InConfigFileName, const TSharedRef<FTabManager::FLayout>& InLayoutToSave)
{
	GConfig->SetString(
		LayoutSection, *InLayoutToSave->GetLayoutName().ToString(), *InLayoutToSave->ToString(), InConfigFileName);
}
