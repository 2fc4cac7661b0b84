// SPDX-License-Identifier: MIT

#include "Host/DockNodes.h"

#include "Docking/DockAccess.h"

namespace Host
{
void SDockNode::ConstructNode(float InSizeCoefficient)
{
	SizeCoefficient = InSizeCoefficient;
	SetVisibility(TAttribute<EVisibility>::CreateSP(this, &SDockNode::GetNodeVisibility));
}

EVisibility SDockNode::GetNodeVisibility() const
{
	return HasOpenTabs() ? EVisibility::Visible : EVisibility::Collapsed;
}

TSharedPtr<SDockSplitter> SDockNode::GetSplitter() const
{
	const TSharedPtr<SWidget> Parent = GetParentWidget();
	return dynamic_cast<SDockSplitter*>(Parent.Get()) ? StaticCastSharedPtr<SDockSplitter>(Parent) : nullptr;
}

TSharedPtr<SDockArea> SDockNode::GetArea()
{
	for (TSharedPtr<SWidget> Above = AsShared(); Above.IsValid(); Above = Above->GetParentWidget())
	{
		if (dynamic_cast<SDockArea*>(Above.Get()))
		{
			return StaticCastSharedPtr<SDockArea>(Above);
		}
	}
	return nullptr;
}

void SDockSplitter::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	ConstructNode(InArgs._SizeCoefficient);
}

TSharedRef<SDockNode> SDockSplitter::GetNode(int32 Index) const
{
	return StaticCastSharedRef<SDockNode>(Children.GetChildAt(Index));
}

int32 SDockSplitter::FindNode(const SDockNode& Node) const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (&GetNode(Index).Get() == &Node)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool SDockSplitter::HasOpenTabs() const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (GetNode(Index)->HasOpenTabs())
		{
			return true;
		}
	}
	return false;
}

bool SDockSplitter::IsAutosized() const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (GetNode(Index)->HasOpenTabs() && !GetNode(Index)->IsAutosized())
		{
			return false;
		}
	}
	return HasOpenTabs();
}

void SDockSplitter::ForEachStack(TFunctionRef<void(const TSharedRef<SDockStack>&)> Visit)
{
	TArray<TSharedRef<SDockNode>> Nodes; // a visit may change the children
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Nodes.Add(GetNode(Index));
	}
	for (const TSharedRef<SDockNode>& Node : Nodes)
	{
		Node->ForEachStack(Visit);
	}
}

void SDockSplitter::FillLayout(FTabManager::FSplitter& Layout) const
{
	Layout.SetOrientation(Orientation);
	Layout.SetSizeCoefficient(SizeCoefficient);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Layout.Split(FDockAccess::ToLayout(*GetNode(Index)));
	}
}

TSharedRef<FTabManager::FLayoutNode> SDockSplitter::ToLayout() const
{
	const TSharedRef<FTabManager::FSplitter> Layout = FTabManager::NewSplitter();
	FillLayout(*Layout);
	return Layout;
}

void FDockAccess::InsertNode(SDockSplitter& Splitter, const TSharedRef<SDockNode>& Node, int32 Index)
{
	Splitter.Children.AddSlot({Node}, Index);
}

void FDockAccess::RemoveNode(SDockSplitter& Splitter, const TSharedRef<SDockNode>& Node)
{
	Splitter.Children.Remove(Node);
}

void FDockAccess::SplitNode(
	const TSharedRef<SDockNode>& Node, const TSharedRef<SDockNode>& NewNode, EOrientation Orientation, bool bBefore)
{
	const TSharedPtr<SDockSplitter> Around = Node->GetSplitter();
	if (!Around.IsValid())
	{
		// The whole area: its nodes move together to one side.
		SDockSplitter& Area = static_cast<SDockSplitter&>(*Node);
		if (Area.Orientation != Orientation && Area.NumNodes() > 1)
		{
			const TSharedRef<SDockSplitter> Inner = SNew(SDockSplitter).Orientation(Area.Orientation);
			while (Area.NumNodes() > 0)
			{
				const TSharedRef<SDockNode> Moved = Area.GetNode(0);
				RemoveNode(Area, Moved);
				InsertNode(*Inner, Moved, INDEX_NONE);
			}
			InsertNode(Area, Inner, INDEX_NONE);
		}
		Area.Orientation = Orientation;
		float Total = 0.0f;
		for (int32 Index = 0; Index < Area.NumNodes(); ++Index)
		{
			Total += Area.GetNode(Index)->HasOpenTabs() ? Area.GetNode(Index)->SizeCoefficient : 0.0f;
		}
		NewNode->SizeCoefficient = Total > 0.0f ? Total : 1.0f;
		InsertNode(Area, NewNode, bBefore ? 0 : INDEX_NONE);
		return;
	}
	const int32 Index = Around->FindNode(*Node);
	if (Around->Orientation == Orientation || Around->NumNodes() == 1)
	{
		Around->Orientation = Orientation;
		Node->SizeCoefficient *= 0.5f;
		NewNode->SizeCoefficient = Node->SizeCoefficient;
		InsertNode(*Around, NewNode, bBefore ? Index : Index + 1);
		return;
	}
	const TSharedRef<SDockSplitter> Both =
		SNew(SDockSplitter).Orientation(Orientation).SizeCoefficient(Node->SizeCoefficient);
	RemoveNode(*Around, Node);
	InsertNode(*Around, Both, Index);
	Node->SizeCoefficient = NewNode->SizeCoefficient = 0.5f;
	InsertNode(*Both, bBefore ? NewNode : Node, INDEX_NONE);
	InsertNode(*Both, bBefore ? Node : NewNode, INDEX_NONE);
}

void FDockAccess::RemoveEmpty(const TSharedRef<SDockStack>& Stack)
{
	if (Stack->Places.Num() > 0)
	{
		return;
	}
	TSharedRef<SDockNode> Node = Stack;
	for (TSharedPtr<SDockSplitter> Around = Node->GetSplitter(); Around.IsValid(); Around = Node->GetSplitter())
	{
		RemoveNode(*Around, Node);
		const TSharedPtr<SDockSplitter> Outer = Around->GetSplitter();
		if (Around->NumNodes() == 1 && Outer.IsValid())
		{
			const TSharedRef<SDockNode> Left = Around->GetNode(0);
			const int32 Index = Outer->FindNode(*Around);
			Left->SizeCoefficient = Around->SizeCoefficient;
			RemoveNode(*Around, Left);
			RemoveNode(*Outer, Around.ToSharedRef());
			InsertNode(*Outer, Left, Index);
		}
		if (Around->NumNodes() > 0 || !Outer.IsValid())
		{
			return;
		}
		Node = Around.ToSharedRef();
	}
}

void SDockStack::Construct(const FArguments& InArgs)
{
	bHideTabWell = InArgs._HideTabWell;
	ConstructNode(InArgs._SizeCoefficient);
}

TArray<TSharedRef<SDockTab>> SDockStack::GetTabs() const
{
	TArray<TSharedRef<SDockTab>> Tabs;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Tabs.Add(StaticCastSharedRef<SDockTab>(Children.GetChildAt(Index)));
	}
	return Tabs;
}

bool SDockStack::IsAutosized() const
{
	for (const TSharedRef<SDockTab>& Tab : GetTabs())
	{
		if (!Tab->ShouldAutosize())
		{
			return false;
		}
	}
	return Children.Num() > 0;
}

TSharedRef<FTabManager::FLayoutNode> SDockStack::ToLayout() const
{
	const TSharedRef<FTabManager::FStack> Layout = FTabManager::NewStack();
	Layout->SetSizeCoefficient(SizeCoefficient);
	Layout->SetHideTabWell(bHideTabWell);
	const TSharedPtr<SDockArea> Area = const_cast<SDockStack*>(this)->GetArea();
	const TSharedPtr<FTabManager> Manager = Area.IsValid() ? Area->GetManager() : nullptr;
	for (const FPlace& Place : Places)
	{
		// What no spawner makes cannot be opened again: its kind keeps the place.
		const bool bDocument = Manager.IsValid() && FDockAccess::IsDocumentPlace(*Manager, Place.Id);
		if (bDocument)
		{
			Layout->AddTab(Place.Id.TabType, ETabState::ClosedTab);
			continue;
		}
		Layout->AddTab(Place.Id, Place.Tab.IsValid() ? ETabState::OpenedTab : ETabState::ClosedTab);
		if (Place.Tab.IsValid() && Place.Tab == Foreground.Pin())
		{
			Layout->SetForegroundTab(Place.Id);
		}
	}
	return Layout;
}

int32 SDockStack::FindPlace(TFunctionRef<bool(const FPlace&)> Test) const
{
	return Places.IndexOfByPredicate(Test);
}

int32 SDockStack::FindPlace(const SDockTab& Tab) const
{
	return FindPlace([&](const FPlace& Place) { return Place.Tab.Get() == &Tab; });
}

int32 SDockStack::ChildIndexOf(int32 PlaceIndex) const
{
	int32 ChildIndex = 0;
	for (int32 Index = 0; Index < PlaceIndex; ++Index)
	{
		ChildIndex += Places[Index].Tab.IsValid() ? 1 : 0;
	}
	return ChildIndex;
}

void SDockStack::Open(int32 PlaceIndex, const TSharedRef<SDockTab>& Tab)
{
	Children.AddSlot({Tab}, ChildIndexOf(PlaceIndex));
	Places[PlaceIndex].Tab = Tab;
	if (!Foreground.IsValid())
	{
		SetForeground(Tab);
	}
}

void SDockStack::Close(int32 PlaceIndex)
{
	const TSharedRef<SDockTab> Tab = Places[PlaceIndex].Tab.ToSharedRef();
	Places[PlaceIndex].Tab.Reset();
	const int32 ChildIndex = Children.Remove(Tab);
	if (Foreground.Pin() != Tab)
	{
		return;
	}
	// The one that was used last comes to the front; of several, the nearest one on the left.
	TSharedPtr<SDockTab> Next;
	const TArray<TSharedRef<SDockTab>> Left = GetTabs();
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		const uint64 Order = FDockAccess::ActivationOrder(*Left[Index]);
		const uint64 Best = Next.IsValid() ? FDockAccess::ActivationOrder(*Next) : 0;
		if (!Next.IsValid() || Order > Best || (Order == Best && Index < ChildIndex))
		{
			Next = Left[Index];
		}
	}
	SetForeground(Next);
}

void SDockStack::SetForeground(const TSharedPtr<SDockTab>& Tab)
{
	Foreground = Tab;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void FDockAccess::OpenAt(SDockStack& Stack, int32 PlaceIndex, const TSharedRef<SDockTab>& Tab)
{
	Stack.Places[PlaceIndex].Id = Tab->GetLayoutIdentifier();
	Stack.Open(PlaceIndex, Tab);
}

void FDockAccess::InsertTab(SDockStack& Stack, const TSharedRef<SDockTab>& Tab, int32 ChildIndex)
{
	int32 PlaceIndex = Stack.Places.Num();
	if (ChildIndex != INDEX_NONE && ChildIndex < Stack.Children.Num())
	{
		PlaceIndex = Stack.FindPlace(*Stack.GetTabs()[ChildIndex]);
	}
	// A closed place of the same tab would stand for it twice.
	const int32 Former = FindClosedPlace(Stack, [&](const FTabId& Id) { return Id == Tab->GetLayoutIdentifier(); });
	if (Former != INDEX_NONE)
	{
		Stack.Places.RemoveAt(Former);
		PlaceIndex -= Former < PlaceIndex ? 1 : 0;
	}
	Stack.Places.Insert(SDockStack::FPlace{Tab->GetLayoutIdentifier(), nullptr}, PlaceIndex);
	Stack.Open(PlaceIndex, Tab);
}

void FDockAccess::TakeOut(const TSharedRef<SDockStack>& Stack, const TSharedRef<SDockTab>& Tab, bool bKeepPlace)
{
	const int32 PlaceIndex = Stack->FindPlace(*Tab);
	Stack->Close(PlaceIndex);
	const TSharedPtr<SDockArea> Area = Stack->GetArea();
	const TSharedPtr<FTabManager> Manager = Area.IsValid() ? Area->GetManager() : nullptr;
	FTabId& Id = Stack->Places[PlaceIndex].Id;
	if (bKeepPlace && Manager.IsValid() && IsDocumentPlace(*Manager, Id))
	{
		Id.InstanceId = INDEX_NONE;
		// One place is enough for the next document of that kind.
		const FTabId Placeholder = Id;
		bKeepPlace = FindClosedPlace(*Stack, [&](const FTabId& Other) { return Other == Placeholder; }) == PlaceIndex;
	}
	if (!bKeepPlace)
	{
		Stack->Places.RemoveAt(PlaceIndex);
	}
}

int32 FDockAccess::FindClosedPlace(const SDockStack& Stack, TFunctionRef<bool(const FTabId&)> Test)
{
	return Stack.FindPlace([&](const SDockStack::FPlace& Place) { return !Place.Tab.IsValid() && Test(Place.Id); });
}
} // namespace Host
