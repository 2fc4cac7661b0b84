// SPDX-License-Identifier: MIT
#include "ToolMenus.h"

#include "Host/ToolMenusRuntime.h"
#include "Logging/LogMacros.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SNullWidget.h"

DEFINE_LOG_CATEGORY_STATIC(LogToolMenus, Log, All);

namespace
{
UToolMenus* Singleton = nullptr;
bool bStarted = false;

TArray<FSimpleMulticastDelegate::FDelegate>& StartupCallbacks()
{
	static TArray<FSimpleMulticastDelegate::FDelegate> Callbacks;
	return Callbacks;
}
} // namespace

/** Lets the runtime's functions reach the registry's private parts. */
struct FToolMenusAccess
{
	static void Tick(UToolMenus& Menus)
	{
		if (!Menus.bRefreshWidgetsNextTick)
		{
			return;
		}
		Menus.bRefreshWidgetsNextTick = false;
		Menus.ForgetClosedWidgets();
		TArray<FName> Names;
		for (const FGeneratedToolMenuWidget& Generated : Menus.GeneratedWidgets)
		{
			Names.AddUnique(Generated.GeneratedMenu->MenuName);
		}
		for (const FName Name : Names)
		{
			Menus.RefreshMenuWidget(Name);
		}
	}
};

namespace Host
{
void StartToolMenus()
{
	if (bStarted)
	{
		return;
	}
	bStarted = true;
	const TArray<FSimpleMulticastDelegate::FDelegate> Callbacks = MoveTemp(StartupCallbacks());
	StartupCallbacks().Reset();
	for (const FSimpleMulticastDelegate::FDelegate& Callback : Callbacks)
	{
		Callback.ExecuteIfBound();
	}
}

void TickToolMenus()
{
	if (Singleton)
	{
		FToolMenusAccess::Tick(*Singleton);
	}
}

void ResetToolMenus()
{
	bStarted = false;
	StartupCallbacks().Empty();
	if (Singleton)
	{
		Singleton->RemoveFromRoot();
		Singleton = nullptr;
	}
}
} // namespace Host

UToolMenus* UToolMenus::Get()
{
	if (!Singleton)
	{
		Singleton = NewObject<UToolMenus>(GetTransientPackage(), NAME_None, RF_Transient);
		Singleton->AddToRoot();
	}
	return Singleton;
}

UToolMenus* UToolMenus::TryGet()
{
	return Singleton;
}

bool UToolMenus::IsToolMenuUIEnabled()
{
	return true;
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (bStarted)
	{
		InDelegate.ExecuteIfBound();
	}
	else
	{
		StartupCallbacks().Add(InDelegate);
	}
	return InDelegate.GetHandle();
}

void UToolMenus::UnRegisterStartupCallback(FDelegateUserObjectConst UserPointer)
{
	StartupCallbacks().RemoveAll([UserPointer](const FSimpleMulticastDelegate::FDelegate& Callback)
		{ return Callback.IsBoundToObject(UserPointer); });
}

void UToolMenus::UnRegisterStartupCallback(FDelegateHandle InHandle)
{
	StartupCallbacks().RemoveAll(
		[InHandle](const FSimpleMulticastDelegate::FDelegate& Callback) { return Callback.GetHandle() == InHandle; });
}

void UToolMenus::UnregisterOwner(FToolMenuOwner Owner)
{
	if (!Singleton || !Owner.IsSet())
	{
		return;
	}
	for (const auto& Pair : Singleton->Menus)
	{
		UToolMenu& Menu = *Pair.Value;
		for (FToolMenuSection& Section : Menu.Sections)
		{
			Section.RemoveEntriesByOwner(Owner);
		}
		Menu.Sections.RemoveAll(
			[&](const FToolMenuSection& Section) { return Section.Owner == Owner && Section.Blocks.Num() == 0; });
	}
	Singleton->RefreshAllWidgets();
}

FName UToolMenus::JoinMenuPaths(const FName Base, const FName Child)
{
	return FName(*(Base.ToString() + TEXT(".") + Child.ToString()));
}

UToolMenu* UToolMenus::FindOrMakeMenu(const FName Name)
{
	checkf(!Name.IsNone(), TEXT("A menu needs a name"));
	if (UToolMenu* const Existing = FindMenu(Name))
	{
		return Existing;
	}
	UToolMenu* const Menu = NewObject<UToolMenu>(this, NAME_None, RF_Transient);
	Menu->MenuName = Name;
	Menu->MenuOwner = CurrentOwner();
	Menus.Add(Name, Menu);
	return Menu;
}

UToolMenu* UToolMenus::RegisterMenu(FName Name, const FName Parent, EMultiBoxType Type, bool bWarnIfAlreadyRegistered)
{
	UToolMenu* const Menu = FindOrMakeMenu(Name);
	if (Menu->bRegistered)
	{
		if (bWarnIfAlreadyRegistered)
		{
			UE_LOG(LogToolMenus, Warning, TEXT("The menu '%s' is registered already"), *Name.ToString());
		}
		return Menu;
	}
	Menu->bRegistered = true;
	Menu->MenuParent = Parent;
	Menu->MenuType = Type;
	Menu->MenuOwner = CurrentOwner();
	return Menu;
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	return FindOrMakeMenu(Name);
}

UToolMenu* UToolMenus::FindMenu(const FName Name)
{
	const TObjectPtr<UToolMenu>* const Found = Menus.Find(Name);
	return Found ? Found->Get() : nullptr;
}

bool UToolMenus::IsMenuRegistered(const FName Name) const
{
	const TObjectPtr<UToolMenu>* const Found = Menus.Find(Name);
	return Found && (*Found)->bRegistered;
}

void UToolMenus::AddSection(
	const FName MenuName, const FName SectionName, const TAttribute<FText>& InLabel, const FToolMenuInsert InPosition)
{
	ExtendMenu(MenuName)->AddSection(SectionName, InLabel, InPosition);
}

void UToolMenus::RemoveSection(const FName MenuName, const FName SectionName)
{
	if (UToolMenu* const Menu = FindMenu(MenuName))
	{
		Menu->RemoveSection(SectionName);
	}
}

void UToolMenus::RemoveEntry(const FName MenuName, const FName SectionName, const FName EntryName)
{
	UToolMenu* const Menu = FindMenu(MenuName);
	if (FToolMenuSection* const Section = Menu ? Menu->FindSection(SectionName) : nullptr)
	{
		Section->RemoveEntry(EntryName);
	}
}

void UToolMenus::RemoveMenu(const FName MenuName)
{
	Menus.Remove(MenuName);
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const FName Name, const FToolMenuContext& InMenuContext)
{
	UToolMenu* const Generated = GenerateMenu(Name, InMenuContext);
	return GenerateWidget(Generated);
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(UToolMenu* GeneratedMenu)
{
	check(GeneratedMenu);
	ForgetClosedWidgets();
	const TSharedRef<SWidget> Widget = MakeBuilder(*GeneratedMenu)->MakeWidget();
	FGeneratedToolMenuWidget Record;
	Record.GeneratedMenu = GeneratedMenu;
	Record.Widget = StaticCastSharedRef<SMultiBoxWidget>(Widget);
	GeneratedWidgets.Add(Record);
	return Widget;
}

void UToolMenus::RefreshAllWidgets()
{
	bRefreshWidgetsNextTick = true;
}

bool UToolMenus::RefreshMenuWidget(const FName InName)
{
	bool bFound = false;
	for (int32 Index = 0; Index < GeneratedWidgets.Num(); ++Index)
	{
		const TSharedPtr<SMultiBoxWidget> Widget = GeneratedWidgets[Index].Widget.Pin();
		UToolMenu* const Former = GeneratedWidgets[Index].GeneratedMenu;
		if (!Widget.IsValid() || Former->MenuName != InName || !FindMenu(InName))
		{
			continue;
		}
		UToolMenu* const Generated = GenerateMenu(InName, Former->Context);
		GeneratedWidgets[Index].GeneratedMenu = Generated;
		Widget->SetMultiBox(MakeBuilder(*Generated)->GetMultiBox());
		Widget->BuildMultiBoxWidget();
		bFound = true;
	}
	return bFound;
}

void UToolMenus::ForgetClosedWidgets()
{
	GeneratedWidgets.RemoveAll([](const FGeneratedToolMenuWidget& Generated) { return !Generated.Widget.IsValid(); });
}

FToolMenuOwner UToolMenus::CurrentOwner() const
{
	return OwnerStack.Num() > 0 ? OwnerStack.Last() : FToolMenuOwner();
}

void UToolMenus::PopOwner(const FToolMenuOwner InOwner)
{
	checkf(OwnerStack.Num() > 0 && OwnerStack.Last() == InOwner, TEXT("Owners of menus end in another order"));
	OwnerStack.Pop();
}
