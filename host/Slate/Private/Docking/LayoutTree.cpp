// SPDX-License-Identifier: MIT
// The parts of a layout, which say where tabs go.

#include "Framework/Docking/TabManager.h"

FString FTabId::ToString() const
{
	return InstanceId == INDEX_NONE ? TabType.ToString()
									: FString::Printf(TEXT("%s:%d"), *TabType.ToString(), InstanceId);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::AddTab(const FName TabType, ETabState::Type InTabState)
{
	return AddTab(FTabId(TabType), InTabState);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::AddTab(const FTabId& TabId, ETabState::Type InTabState)
{
	Tabs.Add(FTab(TabId, InTabState));
	return SharedThis(this);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::SetSizeCoefficient(const float InSizeCoefficient)
{
	SizeCoefficient = InSizeCoefficient;
	return SharedThis(this);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::SetHideTabWell(const bool bInHideTabWell)
{
	bHideTabWell = bInHideTabWell;
	return SharedThis(this);
}

TSharedRef<FTabManager::FStack> FTabManager::FStack::SetForegroundTab(const FTabId& TabId)
{
	ForegroundTabId = TabId;
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::Split(TSharedRef<FLayoutNode> InNode)
{
	checkf(!InNode->AsArea().IsValid(), TEXT("An area is not put into another node"));
	ChildNodes.Add(InNode);
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::SetOrientation(const EOrientation InOrientation)
{
	Orientation = InOrientation;
	return SharedThis(this);
}

TSharedRef<FTabManager::FSplitter> FTabManager::FSplitter::SetSizeCoefficient(const float InSizeCoefficient)
{
	SizeCoefficient = InSizeCoefficient;
	return SharedThis(this);
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::Split(TSharedRef<FLayoutNode> InNode)
{
	FSplitter::Split(InNode);
	return SharedThis(this);
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::SetOrientation(const EOrientation InOrientation)
{
	FSplitter::SetOrientation(InOrientation);
	return SharedThis(this);
}

TSharedRef<FTabManager::FArea> FTabManager::FArea::SetWindow(FVector2D InPosition, bool bInIsMaximized)
{
	WindowPlacement = Placement_Specified;
	UnscaledWindowPosition = InPosition;
	bIsMaximized = bInIsMaximized;
	return SharedThis(this);
}

TSharedRef<FTabManager::FLayout> FTabManager::FLayout::AddArea(const TSharedRef<FArea>& InArea)
{
	Areas.Add(InArea);
	if (InArea->WindowPlacement == FArea::Placement_NoWindow)
	{
		PrimaryArea = InArea;
	}
	return SharedThis(this);
}

TSharedRef<FTabManager::FLayout> FTabManager::NewLayout(const FName LayoutName)
{
	return MakeShareable(new FLayout(LayoutName));
}

TSharedRef<FTabManager::FArea> FTabManager::NewPrimaryArea()
{
	return MakeShared<FArea>();
}

TSharedRef<FTabManager::FArea> FTabManager::NewArea(const float Width, const float Height)
{
	return NewArea(FVector2D(Width, Height));
}

TSharedRef<FTabManager::FArea> FTabManager::NewArea(const FVector2D& WindowSize)
{
	const TSharedRef<FArea> Area = MakeShared<FArea>();
	Area->WindowPlacement = FArea::Placement_Automatic;
	Area->UnscaledWindowSize = WindowSize;
	return Area;
}

TSharedRef<FTabManager::FStack> FTabManager::NewStack()
{
	return MakeShared<FStack>();
}

TSharedRef<FTabManager::FSplitter> FTabManager::NewSplitter()
{
	return MakeShared<FSplitter>();
}
