// SPDX-License-Identifier: MIT
#include "IDocumentation.h"

#include "Host/DocumentationPages.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"
#include "Templates/Function.h"

DEFINE_LOG_CATEGORY_STATIC(LogDocumentation, Log, All);

namespace
{
const TCHAR* const SharedPrefix = TEXT("Shared/");
const TCHAR* const RootLink = TEXT("%ROOT%");

Host::FShowDocument& Viewer()
{
	static Host::FShowDocument Function;
	return Function;
}

FString& Folder()
{
	static FString Path;
	return Path;
}

class FDocumentation : public IDocumentation
{
public:
	bool Open(const FString& Link, FDocumentationSourceInfo) const override
	{
		const FString Page = Host::FindDocumentationPage(Link);
		if (Page.IsEmpty())
		{
			UE_LOG(LogDocumentation, Warning, TEXT("There is no page '%s' in the documentation of '%s'"), *Link,
				*Folder());
			return false;
		}
		if (!Viewer())
		{
			UE_LOG(LogDocumentation, Log, TEXT("The page '%s' is %s"), *Link, *Page);
			return false;
		}
		if (!Viewer()(Page))
		{
			UE_LOG(LogDocumentation, Warning, TEXT("%s could not be shown"), *Page);
			return false;
		}
		return true;
	}
};
} // namespace

TSharedRef<IDocumentation> IDocumentation::Get()
{
	static const TSharedRef<IDocumentation> Instance = MakeShared<FDocumentation>();
	return Instance;
}

namespace Host
{
FShowDocument SetDocumentViewer(FShowDocument NewViewer)
{
	FShowDocument Former = MoveTemp(Viewer());
	Viewer() = MoveTemp(NewViewer);
	return Former;
}

void SetDocumentationFolder(const FString& NewFolder)
{
	Folder() = NewFolder;
}

FString FindDocumentationPage(const FString& Link)
{
	FString Page = Link;
	while (Page.StartsWith(SharedPrefix))
	{
		Page = Page.RightChop(FString(SharedPrefix).Len());
	}
	if (Folder().IsEmpty() || Page.IsEmpty())
	{
		return FString();
	}
	FString Path = Page == RootLink ? Folder() / TEXT("README.md") : Folder() / TEXT("docs") / Page + TEXT(".md");
	// A link names a page below the folder, never a file elsewhere.
	if (Page.Contains(TEXT("..")) || !FPaths::FileExists(Path))
	{
		return FString();
	}
	return Path;
}
} // namespace Host
