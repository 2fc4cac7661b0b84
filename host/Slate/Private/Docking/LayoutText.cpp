// SPDX-License-Identifier: MIT

#include "Docking/LayoutText.h"

#include <cmath>

using Host::FJsonValue;
using Host::QuoteJson;

namespace
{
const TCHAR* const OrientationNames[] = {TEXT("Orient_Horizontal"), TEXT("Orient_Vertical")};
const TCHAR* const PlacementNames[] = {
	TEXT("Placement_NoWindow"), TEXT("Placement_Automatic"), TEXT("Placement_Specified")};

struct FStateName
{
	const TCHAR* Name;
	ETabState::Type State;
};
const FStateName StateNames[] = {{TEXT("OpenedTab"), ETabState::OpenedTab}, {TEXT("ClosedTab"), ETabState::ClosedTab},
	{TEXT("SidebarTab"), ETabState::SidebarTab}, {TEXT("InvalidTab"), ETabState::InvalidTab}};

/** Windows beyond this are nowhere on any desktop. */
constexpr double MaxPixels = 100000.0;

FString StringOf(const FJsonValue& Object, const TCHAR* Key)
{
	const FJsonValue* const Value = Object.Find(Key);
	return Value ? Value->String : FString();
}

double NumberOf(const FJsonValue& Object, const TCHAR* Key, double Default)
{
	const FJsonValue* const Value = Object.Find(Key);
	return Value && Value->Kind == FJsonValue::EKind::Number && std::isfinite(Value->Number) ? Value->Number : Default;
}

double PixelsOf(const FJsonValue& Object, const TCHAR* Key)
{
	const double Pixels = NumberOf(Object, Key, 0.0);
	return std::abs(Pixels) <= MaxPixels ? Pixels : 0.0;
}

bool BoolOf(const FJsonValue& Object, const TCHAR* Key)
{
	const FJsonValue* const Value = Object.Find(Key);
	return Value && Value->bBool;
}

float SizeOf(const FJsonValue& Object)
{
	const float Size = static_cast<float>(NumberOf(Object, TEXT("SizeCoefficient"), 1.0));
	return Size > 0.0f && std::isfinite(Size) ? Size : 1.0f;
}

EOrientation OrientationOf(const FJsonValue& Object)
{
	return StringOf(Object, TEXT("Orientation")) == OrientationNames[Orient_Vertical] ? Orient_Vertical
																					  : Orient_Horizontal;
}

FTabId TabIdOf(const FString& Text)
{
	FString Type;
	FString Number;
	if (Text.Split(TEXT(":"), &Type, &Number, ESearchCase::CaseSensitive, ESearchDir::FromEnd) && Number.IsNumeric())
	{
		return FTabId(FName(*Type), FCString::Atoi(*Number));
	}
	return FTabId(FName(*Text));
}

const TCHAR* BoolName(bool bValue)
{
	return bValue ? TEXT("true") : TEXT("false");
}

/** The array under the key; null with a reason when there is none. */
const FJsonValue* ArrayOf(const FJsonValue& Object, const TCHAR* Key, FString& OutError)
{
	const FJsonValue* const Value = Object.Find(Key);
	if (Value && Value->Kind == FJsonValue::EKind::Array)
	{
		return Value;
	}
	OutError = FString::Printf(TEXT("the list '%s' is missing"), Key);
	return nullptr;
}
} // namespace

FString FLayoutText::Write(const FTabManager::FLayout& Layout)
{
	int32 PrimaryIndex = INDEX_NONE;
	TArray<FString> Areas;
	for (const TSharedRef<FTabManager::FArea>& Area : Layout.Areas)
	{
		PrimaryIndex = Area == Layout.PrimaryArea.Pin() ? Areas.Num() : PrimaryIndex;
		Areas.Add(WriteArea(*Area));
	}
	return FString::Printf(TEXT("{\"Type\": \"Layout\", \"Name\": %s, \"PrimaryAreaIndex\": %d, \"Areas\": [%s]}"),
		*QuoteJson(Layout.LayoutName.ToString()), PrimaryIndex, *FString::Join(Areas, TEXT(", ")));
}

FString FLayoutText::WriteArea(const FTabManager::FArea& Area)
{
	FString Window;
	if (Area.WindowPlacement != FTabManager::FArea::Placement_NoWindow)
	{
		Window = FString::Printf(TEXT(", \"WindowPosition_X\": %f, \"WindowPosition_Y\": %f, \"WindowSize_X\": %f, ")
									 TEXT("\"WindowSize_Y\": %f, \"bIsMaximized\": %s"),
			Area.UnscaledWindowPosition.X, Area.UnscaledWindowPosition.Y, Area.UnscaledWindowSize.X,
			Area.UnscaledWindowSize.Y, BoolName(Area.bIsMaximized));
	}
	return FString::Printf(TEXT("{\"SizeCoefficient\": %g, \"Type\": \"Area\", \"Orientation\": \"%s\", ")
							   TEXT("\"WindowPlacement\": \"%s\"%s, \"Nodes\": [%s]}"),
		double(Area.SizeCoefficient), OrientationNames[Area.Orientation], PlacementNames[Area.WindowPlacement], *Window,
		*WriteNodes(Area));
}

FString FLayoutText::WriteNodes(const FTabManager::FSplitter& Splitter)
{
	TArray<FString> Nodes;
	for (const TSharedRef<FTabManager::FLayoutNode>& Node : Splitter.ChildNodes)
	{
		Nodes.Add(WriteNode(*Node));
	}
	return FString::Join(Nodes, TEXT(", "));
}

FString FLayoutText::WriteNode(FTabManager::FLayoutNode& Node)
{
	if (const TSharedPtr<FTabManager::FStack> Stack = Node.AsStack())
	{
		return WriteStack(*Stack);
	}
	const TSharedPtr<FTabManager::FSplitter> Splitter = Node.AsSplitter();
	return FString::Printf(
		TEXT("{\"SizeCoefficient\": %g, \"Type\": \"Splitter\", \"Orientation\": \"%s\", \"Nodes\": [%s]}"),
		double(Splitter->GetSizeCoefficient()), OrientationNames[Splitter->Orientation], *WriteNodes(*Splitter));
}

FString FLayoutText::WriteStack(const FTabManager::FStack& Stack)
{
	TArray<FString> Tabs;
	for (const FTabManager::FTab& Tab : Stack.Tabs)
	{
		const TCHAR* State = TEXT("");
		for (const FStateName& Each : StateNames)
		{
			State = Each.State == Tab.TabState ? Each.Name : State;
		}
		Tabs.Add(
			FString::Printf(TEXT("{\"TabId\": %s, \"TabState\": \"%s\"}"), *QuoteJson(Tab.TabId.ToString()), State));
	}
	return FString::Printf(TEXT("{\"SizeCoefficient\": %g, \"Type\": \"Stack\", \"HideTabWell\": %s, ")
							   TEXT("\"ForegroundTab\": %s, \"Tabs\": [%s]}"),
		double(Stack.GetSizeCoefficient()), BoolName(Stack.bHideTabWell), *QuoteJson(Stack.ForegroundTabId.ToString()),
		*FString::Join(Tabs, TEXT(", ")));
}

TSharedPtr<FTabManager::FLayout> FLayoutText::Read(const FString& Text, FString& OutError)
{
	FJsonValue Root;
	if (!Host::ReadJson(Text, Root, OutError))
	{
		return nullptr;
	}
	if (StringOf(Root, TEXT("Type")) != TEXT("Layout") || StringOf(Root, TEXT("Name")).IsEmpty())
	{
		OutError = TEXT("it is no layout with a name");
		return nullptr;
	}
	const FJsonValue* const Areas = ArrayOf(Root, TEXT("Areas"), OutError);
	if (!Areas)
	{
		return nullptr;
	}
	const TSharedRef<FTabManager::FLayout> Layout = FTabManager::NewLayout(FName(*StringOf(Root, TEXT("Name"))));
	for (const FJsonValue& Value : Areas->Items)
	{
		const TSharedRef<FTabManager::FArea> Area = FTabManager::NewPrimaryArea();
		if (!ReadArea(Value, *Area, OutError))
		{
			return nullptr;
		}
		Layout->AddArea(Area);
	}
	return Layout;
}

bool FLayoutText::ReadArea(const FJsonValue& Value, FTabManager::FArea& OutArea, FString& OutError)
{
	if (StringOf(Value, TEXT("Type")) != TEXT("Area"))
	{
		OutError = TEXT("an area is expected in the list of areas");
		return false;
	}
	const FString Placement = StringOf(Value, TEXT("WindowPlacement"));
	int32 Known = INDEX_NONE;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Known = Placement == PlacementNames[Index] ? Index : Known;
	}
	if (Known == INDEX_NONE)
	{
		OutError = FString::Printf(TEXT("the window placement '%s' is not known"), *Placement);
		return false;
	}
	OutArea.WindowPlacement = static_cast<FTabManager::FArea::EWindowPlacement>(Known);
	OutArea.UnscaledWindowPosition =
		FVector2D(PixelsOf(Value, TEXT("WindowPosition_X")), PixelsOf(Value, TEXT("WindowPosition_Y")));
	OutArea.UnscaledWindowSize = FVector2D(
		FMath::Max(0.0, PixelsOf(Value, TEXT("WindowSize_X"))), FMath::Max(0.0, PixelsOf(Value, TEXT("WindowSize_Y"))));
	OutArea.bIsMaximized = BoolOf(Value, TEXT("bIsMaximized"));
	OutArea.SizeCoefficient = SizeOf(Value);
	OutArea.Orientation = OrientationOf(Value);
	return ReadNodes(Value, OutArea, OutError);
}

bool FLayoutText::ReadNodes(const FJsonValue& Value, FTabManager::FSplitter& OutSplitter, FString& OutError)
{
	const FJsonValue* const Nodes = ArrayOf(Value, TEXT("Nodes"), OutError);
	if (!Nodes)
	{
		return false;
	}
	for (const FJsonValue& Node : Nodes->Items)
	{
		const FString Type = StringOf(Node, TEXT("Type"));
		if (Type == TEXT("Stack"))
		{
			const TSharedRef<FTabManager::FStack> Stack = FTabManager::NewStack();
			if (!ReadStack(Node, *Stack, OutError))
			{
				return false;
			}
			OutSplitter.Split(Stack);
		}
		else if (Type == TEXT("Splitter"))
		{
			const TSharedRef<FTabManager::FSplitter> Splitter = FTabManager::NewSplitter();
			Splitter->SetSizeCoefficient(SizeOf(Node))->SetOrientation(OrientationOf(Node));
			if (!ReadNodes(Node, *Splitter, OutError))
			{
				return false;
			}
			OutSplitter.Split(Splitter);
		}
		else
		{
			OutError = FString::Printf(TEXT("the node type '%s' is not known"), *Type);
			return false;
		}
	}
	return true;
}

bool FLayoutText::ReadStack(const FJsonValue& Value, FTabManager::FStack& OutStack, FString& OutError)
{
	const FJsonValue* const Tabs = ArrayOf(Value, TEXT("Tabs"), OutError);
	if (!Tabs)
	{
		return false;
	}
	OutStack.SizeCoefficient = SizeOf(Value);
	OutStack.bHideTabWell = BoolOf(Value, TEXT("HideTabWell"));
	OutStack.ForegroundTabId = TabIdOf(StringOf(Value, TEXT("ForegroundTab")));
	for (const FJsonValue& Tab : Tabs->Items)
	{
		const FString Id = StringOf(Tab, TEXT("TabId"));
		const FString StateName = StringOf(Tab, TEXT("TabState"));
		ETabState::Type State = ETabState::ClosedTab;
		for (const FStateName& Each : StateNames)
		{
			State = StateName == Each.Name ? Each.State : State;
		}
		if (Id.IsEmpty())
		{
			OutError = TEXT("a tab has no identifier");
			return false;
		}
		OutStack.AddTab(TabIdOf(Id), State);
	}
	return true;
}

FString FTabManager::FLayout::ToString() const
{
	return FLayoutText::Write(*this);
}

TSharedPtr<FTabManager::FLayout> FTabManager::FLayout::NewFromString(const FString& LayoutAsText)
{
	FString Error;
	return FLayoutText::Read(LayoutAsText, Error);
}
