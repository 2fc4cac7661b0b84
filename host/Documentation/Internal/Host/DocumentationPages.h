// SPDX-License-Identifier: MIT
// Where the documentation lies, and who shows it.
#pragma once

#include "CoreMinimal.h"

namespace Host
{
/** Shows a file or an address; false when that failed. */
using FShowDocument = TFunction<bool(const FString& Path)>;

/** What pages are shown in; without it they are named in the log. @return the former one */
FShowDocument SetDocumentViewer(FShowDocument Viewer);

/** Folder with README.md, the start page, and docs/ with the others. Empty for none. */
void SetDocumentationFolder(const FString& Folder);

/** The file of a link; empty when there is no such page. "Shared/" in front of a link changes nothing. */
FString FindDocumentationPage(const FString& Link);
} // namespace Host
