// SPDX-License-Identifier: MIT
#include "ObjectTools.h"

#include "InvalidCharacters.h"
#include "Misc/MessageDialog.h"
#include "UObject/GarbageCollection.h"
#include "UObject/NameTypes.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "ObjectTools"

FString ObjectTools::SanitizeObjectName(const FString& InObjectName)
{
	return Host::ReplaceCharacters(InObjectName, INVALID_OBJECTNAME_CHARACTERS, TEXT('_'));
}

bool ObjectTools::DeleteSingleObject(UObject* ObjectToDelete, bool bPerformReferenceCheck)
{
	if (!IsValid(ObjectToDelete))
	{
		return false;
	}
	UObject* Referenced = ObjectToDelete;
	if (bPerformReferenceCheck && IsReferenced(Referenced, GARBAGE_COLLECTION_KEEPFLAGS))
	{
		FMessageDialog::Open(EAppMsgType::Ok, FText::Format(LOCTEXT("InUse", "{0} is in use and was not deleted."),
												  FText::FromString(ObjectToDelete->GetPathName())));
		return false;
	}
	ObjectToDelete->MarkPackageDirty();
	ObjectToDelete->ClearFlags(EObjectFlags(RF_Standalone | RF_Public));
	ObjectToDelete->MarkAsGarbage();
	return true;
}

#undef LOCTEXT_NAMESPACE
