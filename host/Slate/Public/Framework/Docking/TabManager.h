// SPDX-License-Identifier: MIT
#pragma once

// Tabs by identifier: who makes them, where they lie, and the layouts that are kept of it.

#include "Framework/Docking/WorkspaceItem.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "Types/SlateEnums.h"

class FLayoutText;
class FMenuBuilder;
class FMultiBox;
class FTabManager;
class SDockTab;
class SWidget;
class SWindow;

namespace Host
{
class SDockArea;
class SDockNode;
class SDockStack;
struct FDockAccess;
} // namespace Host

/** Kind of a tab, and which one of its kind; most kinds have one tab only, without a number. */
struct FTabId
{
	FTabId() = default;
	FTabId(const FName InTabType)
		: TabType(InTabType)
	{
	}
	FTabId(const FName InTabType, int32 InInstanceId)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
	{
	}

	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && InstanceId == Other.InstanceId; }
	/** The kind, and behind a colon the number when there is one. */
	FString ToString() const;

	FName TabType;
	int32 InstanceId = INDEX_NONE;
};

inline uint32 GetTypeHash(const FTabId& Id)
{
	return HashCombine(GetTypeHash(Id.TabType), GetTypeHash(Id.InstanceId));
}

namespace ETabState
{
enum Type
{
	OpenedTab = 1,
	/** Keeps a place for the tab. */
	ClosedTab = 2,
	SidebarTab = 4,
	InvalidTab = 8,
};
}

namespace ETabSpawnerMenuType
{
enum Type
{
	Enabled,
	Disabled,
	Hidden,
};
}

/** When RestoreFrom may answer with nothing instead of an area without open tabs. */
enum class EOutputCanBeNullptr
{
	Never,
	IfNoTabValid,
	IfNoOpenTabValid,
};

/** What a spawner is told. */
class FSpawnTabArgs
{
public:
	FSpawnTabArgs(const TSharedPtr<SWindow>& InOwnerWindow, const FTabId& InTabBeingSpawnedId)
		: TabIdBeingSpawned(InTabBeingSpawnedId)
		, OwnerWindow(InOwnerWindow)
	{
	}

	const FTabId& GetTabId() const { return TabIdBeingSpawned; }
	/** Empty when the tab is spawned before its window is known. */
	const TSharedPtr<SWindow>& GetOwnerWindow() const { return OwnerWindow; }

private:
	FTabId TabIdBeingSpawned;
	TSharedPtr<SWindow> OwnerWindow;
};

using FOnSpawnTab = TDelegate<TSharedRef<SDockTab>(const FSpawnTabArgs&)>;
using FCanSpawnTab = TDelegate<bool(const FSpawnTabArgs&)>;

/** One kind of tab, as an entry of the Window menu. Each setter returns the entry itself. */
struct FTabSpawnerEntry : public FWorkspaceItem
{
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab);

	FTabSpawnerEntry& SetDisplayName(const FText& InDisplayName);
	FTabSpawnerEntry& SetTooltipText(const FText& InTooltipText);
	/** Moves the entry under that group of the menu. */
	FTabSpawnerEntry& SetGroup(const TSharedRef<FWorkspaceItem>& InGroup);
	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon);
	FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType);
	/** False keeps the entry out of menus that are made by themselves. */
	FTabSpawnerEntry& SetAutoGenerateMenuEntry(bool bInAutoGenerateMenuEntry);

	const FName GetTabType() const { return TabType; }
	const FText& GetTooltipText() const { return TooltipText; }
	const FSlateIcon& GetIcon() const { return Icon; }
	ETabSpawnerMenuType::Type GetMenuType() const { return MenuType.Get(); }
	bool ShouldAutoGenerateMenuEntry() const { return bAutoGenerateMenuEntry; }
	TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() override;

private:
	friend struct Host::FDockAccess;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	FCanSpawnTab CanSpawnTab;
	FText TooltipText;
	FSlateIcon Icon;
	TAttribute<ETabSpawnerMenuType::Type> MenuType = ETabSpawnerMenuType::Enabled;
	bool bAutoGenerateMenuEntry = true;
	/** The last tab that was made. */
	TWeakPtr<SDockTab> SpawnedTab;
};

/**
 * The tabs of one window frame: the level editor's, or those inside one editor.
 *
 * A tab is live between its spawner and its close. Its place in the layout outlives it: a closed tab comes back where
 * it was. A stack whose tabs are all closed takes no room but keeps the places; a floating area whose tabs are all
 * closed loses its window, not its place. Game thread.
 */
class FTabManager : public TSharedFromThis<FTabManager>
{
public:
	class FStack;
	class FSplitter;
	class FArea;
	class FLayout;

	DECLARE_DELEGATE_OneParam(FOnPersistLayout, const TSharedRef<FLayout>&);

	/** One place in a stack. */
	struct FTab
	{
		FTab(const FTabId& InTabId, ETabState::Type InTabState)
			: TabId(InTabId)
			, TabState(InTabState)
		{
		}
		bool operator==(const FTab& Other) const { return TabId == Other.TabId && TabState == Other.TabState; }

		FTabId TabId;
		ETabState::Type TabState;
	};

	/** Part of a layout: it says where tabs go, and holds no tab itself. */
	class FLayoutNode : public TSharedFromThis<FLayoutNode>
	{
	public:
		virtual ~FLayoutNode() = default;
		virtual TSharedPtr<FStack> AsStack() { return nullptr; }
		virtual TSharedPtr<FSplitter> AsSplitter() { return nullptr; }
		virtual TSharedPtr<FArea> AsArea() { return nullptr; }
		/** Share of the room, in proportion to the neighbours' ones. */
		float GetSizeCoefficient() const { return SizeCoefficient; }

	protected:
		float SizeCoefficient = 1.0f;
	};

	/** Tabs on top of each other. */
	class FStack : public FLayoutNode
	{
	public:
		/** Behind the others. The same tab may have a place in one stack only. */
		TSharedRef<FStack> AddTab(const FName TabType, ETabState::Type InTabState);
		TSharedRef<FStack> AddTab(const FTabId& TabId, ETabState::Type InTabState);
		TSharedRef<FStack> SetSizeCoefficient(const float InSizeCoefficient);
		/** A hidden tab well shows no tabs until the user asks for it. */
		TSharedRef<FStack> SetHideTabWell(const bool bInHideTabWell);
		/** The tab in front; else the first open one. */
		TSharedRef<FStack> SetForegroundTab(const FTabId& TabId);

		TSharedPtr<FStack> AsStack() override { return SharedThis(this); }

	private:
		friend class FTabManager;
		friend class FLayoutText;
		friend class Host::SDockStack;
		friend struct Host::FDockAccess;

		TArray<FTab> Tabs;
		FTabId ForegroundTabId;
		bool bHideTabWell = false;
	};

	/** Nodes beside each other. */
	class FSplitter : public FLayoutNode
	{
	public:
		TSharedRef<FSplitter> Split(TSharedRef<FLayoutNode> InNode);
		TSharedRef<FSplitter> SetOrientation(const EOrientation InOrientation);
		TSharedRef<FSplitter> SetSizeCoefficient(const float InSizeCoefficient);
		EOrientation GetOrientation() const { return Orientation; }
		const TArray<TSharedRef<FLayoutNode>>& GetChildNodes() const { return ChildNodes; }

		TSharedPtr<FSplitter> AsSplitter() override { return SharedThis(this); }

	protected:
		friend class FLayoutText;

		EOrientation Orientation = Orient_Horizontal;
		TArray<TSharedRef<FLayoutNode>> ChildNodes;
	};

	/** The outermost splitter: inside the owner's own content, or in a window of its own. */
	class FArea : public FSplitter
	{
	public:
		enum EWindowPlacement
		{
			/** The primary area: RestoreFrom gives its widget back. */
			Placement_NoWindow,
			Placement_Automatic,
			Placement_Specified,
		};

		TSharedRef<FArea> Split(TSharedRef<FLayoutNode> InNode);
		TSharedRef<FArea> SetOrientation(const EOrientation InOrientation);
		/** Slate units from the top left of the desktop. */
		TSharedRef<FArea> SetWindow(FVector2D InPosition, bool bInIsMaximized);

		TSharedPtr<FArea> AsArea() override { return SharedThis(this); }

	private:
		friend class FTabManager;
		friend class FLayoutText;
		friend class Host::SDockArea;
		friend struct Host::FDockAccess;

		EWindowPlacement WindowPlacement = Placement_NoWindow;
		FVector2D UnscaledWindowPosition = FVector2D(0.0, 0.0);
		FVector2D UnscaledWindowSize = FVector2D(0.0, 0.0);
		bool bIsMaximized = false;
	};

	/** Areas under a name. The name carries the version: a saved layout is used for a layout of the same name only. */
	class FLayout : public TSharedFromThis<FLayout>
	{
	public:
		TSharedRef<FLayout> AddArea(const TSharedRef<FArea>& InArea);
		/** Empty when there is none; with several the last one counts. */
		const TWeakPtr<FArea>& GetPrimaryArea() const { return PrimaryArea; }
		FName GetLayoutName() const { return LayoutName; }

		/** JSON, see FLayoutSaveRestore. */
		FString ToString() const;
		/** Empty when the text is no layout. */
		static TSharedPtr<FLayout> NewFromString(const FString& LayoutAsText);

	private:
		friend class FTabManager;
		friend class FLayoutText;
		explicit FLayout(FName InLayoutName)
			: LayoutName(InLayoutName)
		{
		}

		TArray<TSharedRef<FArea>> Areas;
		TWeakPtr<FArea> PrimaryArea;
		FName LayoutName;
	};

	/** How InsertNewDocumentTab finds the place. */
	struct ESearchPreference
	{
		enum Type
		{
			/** Beside a live tab of the placeholder's kind. */
			PreferLiveTab,
			/** Where a closed tab of the placeholder's kind was. */
			RequireClosedTab,
		};
	};

	class FSearchPreference
	{
	public:
		virtual ~FSearchPreference() = default;
		/** The tab to insert beside; empty to use the place of a closed tab. */
		virtual TSharedPtr<SDockTab> Search(
			const FTabManager& Manager, FName PlaceholderId, const TSharedRef<SDockTab>& UnmanagedTab) const = 0;
	};

	/** Where a closed tab of the placeholder's kind was, else in a window of its own. */
	class FRequireClosedTab : public FSearchPreference
	{
	public:
		TSharedPtr<SDockTab> Search(
			const FTabManager& Manager, FName PlaceholderId, const TSharedRef<SDockTab>& UnmanagedTab) const override;
	};

	/** Beside a live tab of that kind, or of the placeholder's when no kind is given. */
	class FLiveTabSearch : public FSearchPreference
	{
	public:
		explicit FLiveTabSearch(FName InSearchForTabId = NAME_None)
			: SearchForTabId(InSearchForTabId)
		{
		}
		TSharedPtr<SDockTab> Search(
			const FTabManager& Manager, FName PlaceholderId, const TSharedRef<SDockTab>& UnmanagedTab) const override;

	private:
		FName SearchForTabId;
	};

	/** Beside the major or nomad tab that was last used, but for the new one; else beside a live tab of that kind. */
	class FLastMajorOrNomadTab : public FSearchPreference
	{
	public:
		explicit FLastMajorOrNomadTab(FName InFallbackTabId)
			: FallbackTabId(InFallbackTabId)
		{
		}
		TSharedPtr<SDockTab> Search(
			const FTabManager& Manager, FName PlaceholderId, const TSharedRef<SDockTab>& UnmanagedTab) const override;

	private:
		FName FallbackTabId;
	};

	static TSharedRef<FLayout> NewLayout(const FName LayoutName);
	static TSharedRef<FArea> NewPrimaryArea();
	/** An area in a window of that size, in slate units. */
	static TSharedRef<FArea> NewArea(const float Width, const float Height);
	static TSharedRef<FArea> NewArea(const FVector2D& WindowSize);
	static TSharedRef<FStack> NewStack();
	static TSharedRef<FSplitter> NewSplitter();

	virtual ~FTabManager();

	FTabManager(const FTabManager&) = delete;
	FTabManager& operator=(const FTabManager&) = delete;

	/** A kind may be registered once; a second time is a failed ensure and replaces the first. */
	FTabSpawnerEntry& RegisterTabSpawner(
		const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	/** False when the kind was not registered. Live tabs stay. */
	bool UnregisterTabSpawner(const FName TabId);
	void UnregisterAllTabSpawners();
	/** Known here or as a nomad tab. */
	bool HasTabSpawner(FName TabId) const;

	TSharedRef<FWorkspaceItem> GetLocalWorkspaceMenuRoot() const { return LocalWorkspaceMenuRoot; }
	TSharedRef<FWorkspaceItem> AddLocalWorkspaceMenuCategory(const FText& CategoryTitle);
	void ClearLocalWorkspaceMenuCategories();
	/** Adds an entry with a check mark for each kind of tab, under the headings of the categories. */
	void PopulateLocalTabSpawnerMenu(FMenuBuilder& PopulateMe);

	/**
	 * Brings a live tab to the front, or opens it at its place, or in a window of its own when it has none.
	 *
	 * @return empty when nobody spawns that kind or its spawner does not want to
	 */
	virtual TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive = false);
	/** Empty when the tab is closed. */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	/** Opens a tab that no spawner makes, at the place that the preference finds. It must not be in a layout. */
	void InsertNewDocumentTab(
		FName PlaceholderId, const FSearchPreference& SearchPreference, const TSharedRef<SDockTab>& UnmanagedTab);
	void InsertNewDocumentTab(
		FName PlaceholderId, ESearchPreference::Type SearchPreference, const TSharedRef<SDockTab>& UnmanagedTab);
	/** With the new tab's name as the identifier of its place. */
	void InsertNewDocumentTab(FName PlaceholderId, FName NewTabId, const FSearchPreference& SearchPreference,
		const TSharedRef<SDockTab>& UnmanagedTab);

	/**
	 * Opens the tabs of a layout; those of floating areas in their windows. Close all areas before.
	 *
	 * @param ParentWindow  the window that the primary area will stand in; may be empty
	 * @return the primary area's widget, to be put into the owner's content. Empty when the layout has none, or when it
	 *         has no valid or no open tab and the last argument allows that.
	 */
	TSharedPtr<SWidget> RestoreFrom(const TSharedRef<FLayout>& Layout, const TSharedPtr<SWindow>& ParentWindow,
		const bool bEmbedTitleAreaContent = false,
		const EOutputCanBeNullptr RestoreAreaOutputCanBeNullptr = EOutputCanBeNullptr::Never);
	/** Closes all live tabs without asking, and their windows. Places are forgotten. */
	void CloseAllAreas();
	/** The layout as it stands now, under the name of the one that was restored. */
	TSharedRef<FLayout> PersistLayout() const;
	/** Hands the layout to the handler, if there is one. */
	void SavePersistentLayout();
	void SetOnPersistLayout(const FOnPersistLayout& InHandler) { OnPersistLayout = InHandler; }

	/** Whether windows of this manager's major tabs show its menu bar. */
	void SetAllowWindowMenuBar(bool bInAllowWindowMenuBar) { bAllowWindowMenuBar = bInAllowWindowMenuBar; }
	bool AllowsWindowMenuBar() const { return bAllowWindowMenuBar; }
	/** The main menu that goes with the manager's window; empty values clear it. */
	void SetMenuMultiBox(const TSharedPtr<FMultiBox> NewMenuMutliBox, const TSharedPtr<SWidget> NewMenuWidget);
	TSharedPtr<SWidget> GetMenuWidget() const { return MenuWidget; }

	/** The major tab that the manager was made for; empty for the global one. */
	TSharedPtr<SDockTab> GetOwnerTab() const { return OwnerTab.Pin(); }

protected:
	explicit FTabManager(const TSharedPtr<SDockTab>& InOwnerTab);

	virtual TSharedPtr<FTabSpawnerEntry> FindTabSpawnerFor(FName TabId) const;

	TMap<FName, TSharedRef<FTabSpawnerEntry>> TabSpawners;

private:
	friend class FGlobalTabmanager;
	friend struct Host::FDockAccess;

	TSharedRef<FWorkspaceItem> LocalWorkspaceMenuRoot;
	TWeakPtr<SDockTab> OwnerTab;
	TArray<TWeakPtr<Host::SDockArea>> LiveAreas;
	/** Floating areas without an open tab. */
	TArray<TSharedRef<FArea>> CollapsedAreas;
	FName LayoutName;
	FOnPersistLayout OnPersistLayout;
	TSharedPtr<FMultiBox> MenuMultiBox;
	TSharedPtr<SWidget> MenuWidget;
	bool bAllowWindowMenuBar = false;
	/** Something changed since the layout was last saved. */
	bool bLayoutChanged = false;
};

/** The manager of the level editor's frame and of all major tabs, and the maker of the managers inside those. */
class FGlobalTabmanager : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	/** A manager for the tabs inside a major tab. It saves its layout and closes when that tab closes. */
	TSharedRef<FTabManager> NewTabManager(const TSharedRef<SDockTab>& InOwnerTab);
	/** Empty when the tab has none. */
	TSharedPtr<FTabManager> GetTabManagerForMajorTab(const TSharedPtr<SDockTab> MajorTab) const;

	/** A kind of tab that any manager can open. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(
		const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	bool UnregisterNomadTabSpawner(const FName TabId);

	/** The tab that was used last; empty when it is closed. */
	TSharedPtr<SDockTab> GetActiveTab() const { return ActiveTab.Pin(); }
	void SetActiveTab(const TSharedPtr<SDockTab>& NewActiveTab);

	/** The main window of the program. */
	void SetRootWindow(const TSharedRef<SWindow> InRootWindow) { RootWindow = InRootWindow; }
	TSharedPtr<SWindow> GetRootWindow() const { return RootWindow.Pin(); }

	/** Brings a tab to the front: its window, those that it is nested in, and the tab. */
	void DrawAttention(const TSharedRef<SDockTab>& TabToHighlight);

	/** Saves the layouts of all managers. */
	void SaveAllVisualState();

private:
	friend struct Host::FDockAccess;

	FGlobalTabmanager();

	struct FSubManager
	{
		TWeakPtr<SDockTab> MajorTab;
		TWeakPtr<FTabManager> Manager;
	};

	TArray<FSubManager> SubManagers;
	TMap<FName, TSharedRef<FTabSpawnerEntry>> NomadTabSpawners;
	TWeakPtr<SDockTab> ActiveTab;
	TWeakPtr<SWindow> RootWindow;
};
