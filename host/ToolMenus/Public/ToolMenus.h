// SPDX-License-Identifier: MIT
#pragma once

// All menus and tool bars by name, and the widgets that are generated of them.

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "ToolMenu.h"
#include "ToolMenus.generated.h"

/** A widget and the generated menu behind it. */
USTRUCT()
struct FGeneratedToolMenuWidget
{
	GENERATED_BODY()

	UPROPERTY(Transient)
	TObjectPtr<UToolMenu> GeneratedMenu;

	TWeakPtr<SMultiBoxWidget> Widget;
};

/**
 * The registry. A menu may be extended before somebody registers it, or without anybody ever doing so; what was added
 * shows as soon as the menu or one that has it as its parent is generated. Game thread.
 */
UCLASS()
class TOOLMENUS_API UToolMenus : public UToolMenuBase
{
	GENERATED_BODY()

public:
	/** The one registry, made at first use. */
	static UToolMenus* Get();
	/** Null before the first Get. */
	static UToolMenus* TryGet();
	static bool IsToolMenuUIEnabled();

	/** Runs the delegate at once when the tool menus are up, else when they come up. */
	static FDelegateHandle RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate);
	static void UnRegisterStartupCallback(FDelegateUserObjectConst UserPointer);
	static void UnRegisterStartupCallback(FDelegateHandle InHandle);

	/** Removes the entries, sections and menus that the owner added. */
	static void UnregisterOwner(FToolMenuOwner Owner);

	/** "A.B" of "A" and "B". */
	static FName JoinMenuPaths(const FName Base, const FName Child);

	/** What was added to the name before stays. A second registration logs a warning and gives the first menu. */
	UToolMenu* RegisterMenu(FName Name, const FName Parent = NAME_None, EMultiBoxType Type = EMultiBoxType::Menu,
		bool bWarnIfAlreadyRegistered = true);
	/** The menu of that name, made without being registered when there is none. */
	UToolMenu* ExtendMenu(const FName Name);
	/** Null when nobody registered or extended the name. */
	UToolMenu* FindMenu(const FName Name);
	bool IsMenuRegistered(const FName Name) const;
	void AddSection(const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel,
		const FToolMenuInsert InPosition);
	void RemoveSection(const FName MenuName, const FName SectionName);
	void RemoveEntry(const FName MenuName, const FName SectionName, const FName EntryName);
	/** Widgets of it stay as they are until they are refreshed. */
	void RemoveMenu(const FName MenuName);

	/** The menu with all that its parents and its context bring; empty, with a log line, for an unknown name. */
	UToolMenu* GenerateMenu(const FName Name, const FToolMenuContext& InMenuContext);
	/** A widget of the generated menu. It is kept up to date by RefreshAllWidgets. */
	TSharedRef<SWidget> GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext);
	/** A widget of a menu that GenerateMenu gave; it keeps what it shows. */
	TSharedRef<SWidget> GenerateWidget(UToolMenu* GeneratedMenu);

	/** Generates every widget anew in the next frame. */
	void RefreshAllWidgets();
	/** Generates the widgets of that menu anew, at once; false when there are none. */
	bool RefreshMenuWidget(const FName InName);

	/** The owner of what is added now. */
	FToolMenuOwner CurrentOwner() const;

private:
	friend struct FToolMenuOwnerScoped;
	friend struct FToolMenusAccess;

	void PushOwner(const FToolMenuOwner InOwner) { OwnerStack.Add(InOwner); }
	void PopOwner(const FToolMenuOwner InOwner);

	UToolMenu* FindOrMakeMenu(const FName Name);
	/** The menus that make up a name, the farthest parent first. */
	void CollectHierarchy(const FName Name, TArray<FName>& OutNames) const;
	void AssembleMenu(UToolMenu& Generated) const;
	void AssembleSection(UToolMenu& Generated, const FToolMenuSection& Source) const;
	UToolMenu* GenerateSubMenu(UToolMenu& Parent, const FToolMenuEntry& Entry);
	TSharedRef<FMultiBoxBuilder> MakeBuilder(UToolMenu& Generated);
	static TArray<FToolMenuEntry> ExpandEntries(const FToolMenuSection& Section);
	void PopulateMenu(FMenuBuilder& Builder, UToolMenu& Generated);
	void PopulateMenuBar(FMenuBarBuilder& Builder, UToolMenu& Generated);
	void PopulateToolBar(FToolBarBuilder& Builder, UToolMenu& Generated);
	void PopulateMenuEntry(FMenuBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry);
	void PopulateMenuBarEntry(FMenuBarBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry);
	void PopulateToolBarEntry(FToolBarBuilder& Builder, UToolMenu& Generated, const FToolMenuEntry& Entry);
	FNewMenuDelegate MakeSubMenuFiller(UToolMenu& Generated, const FToolMenuEntry& Entry);
	FOnGetContent MakeContentGenerator(UToolMenu& Generated, const FToolMenuEntry& Entry);
	void ForgetClosedWidgets();

	TArray<FToolMenuOwner> OwnerStack;
	bool bRefreshWidgetsNextTick = false;

	UPROPERTY(Transient)
	TMap<FName, TObjectPtr<UToolMenu>> Menus;

	UPROPERTY(Transient)
	TArray<FGeneratedToolMenuWidget> GeneratedWidgets;
};

/** What is added while it lives belongs to the owner. */
struct TOOLMENUS_API FToolMenuOwnerScoped
{
	explicit FToolMenuOwnerScoped(const FToolMenuOwner InOwner)
		: Owner(InOwner)
	{
		UToolMenus::Get()->PushOwner(InOwner);
	}
	~FToolMenuOwnerScoped() { UToolMenus::Get()->PopOwner(Owner); }

	FToolMenuOwnerScoped(const FToolMenuOwnerScoped&) = delete;
	FToolMenuOwnerScoped& operator=(const FToolMenuOwnerScoped&) = delete;

	FToolMenuOwner GetOwner() const { return Owner; }

private:
	FToolMenuOwner Owner;
};
