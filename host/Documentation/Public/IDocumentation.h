// SPDX-License-Identifier: MIT
// Pages of the documentation, opened by the links that the editor's parts know.
#pragma once

#include "CoreMinimal.h"

/** Where in the editor a page was asked for. */
struct FDocumentationSourceInfo
{
	FString Source;
	FString Medium;
	FString Campaign;
};

class IDocumentation
{
public:
	virtual ~IDocumentation() = default;

	static TSharedRef<IDocumentation> Get();

	/**
	 * Opens a page.
	 *
	 * @param Link  path of the page without its extension; "%ROOT%" for the start page
	 * @return false, with a line in the log, when there is no such page or nothing to show it in
	 */
	virtual bool Open(const FString& Link, FDocumentationSourceInfo Source = FDocumentationSourceInfo()) const = 0;
};
