// SPDX-License-Identifier: MIT
#include "WidgetView.h"

#include "Text.h"
#include "ViewWorld.h"

#include "Host/WidgetTree.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

namespace Host
{

namespace
{

template <typename AlignmentType>
EPlaceAlign ToAlign(AlignmentType Alignment, AlignmentType Begin, AlignmentType Center, AlignmentType End)
{
	if (Alignment == Begin)
	{
		return EPlaceAlign::Begin;
	}
	if (Alignment == Center)
	{
		return EPlaceAlign::Center;
	}
	return Alignment == End ? EPlaceAlign::End : EPlaceAlign::Fill;
}

} // namespace

FWidgetView::FWidgetView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, QWidget* InNative)
	: World(InWorld)
	, WeakModel(InModel)
	, Widget(InNative)
{
	World.Register(*this, Widget);
	if (!InModel->GetTag().IsNone())
	{
		Widget->setObjectName(ToQString(InModel->GetTag()));
	}
}

FWidgetView::~FWidgetView()
{
	World.Unregister(*this);
	if (Widget)
	{
		World.Bury(Widget);
	}
}

void FWidgetView::Follow()
{
	const TSharedPtr<SWidget> Current = WeakModel.Pin();
	if (!Current.IsValid() || !Widget)
	{
		return;
	}
	if (FollowsVisibility())
	{
		const EVisibility Now = Current->GetVisibility();
		const int Code = Now == EVisibility::Collapsed ? 0
						 : Now == EVisibility::Hidden  ? 1
						 : Now.IsHitTestVisible()	   ? 3
													   : 2;
		if (Code != Visibility)
		{
			QSizePolicy Policy = Widget->sizePolicy();
			Policy.setRetainSizeWhenHidden(Code == 1);
			Widget->setSizePolicy(Policy);
			Widget->setAttribute(Qt::WA_TransparentForMouseEvents, Now == EVisibility::HitTestInvisible);
			Widget->setVisible(Code >= 2);
			Visibility = Code;
		}
		if (Code < 2)
		{
			return;
		}
	}
	if (Current->IsEnabled() != bEnabled)
	{
		bEnabled = !bEnabled;
		Widget->setEnabled(bEnabled);
	}
	const QString NewToolTip = ToQString(Current->GetToolTipText());
	if (NewToolTip != ToolTip)
	{
		ToolTip = NewToolTip;
		Widget->setToolTip(ToolTip);
		Widget->setAccessibleDescription(ToolTip);
	}
	FollowModel(*Current);
}

FPanelView::FPanelView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, EPanelKind Kind, QWidget* InNative)
	: FWidgetView(InWorld, InModel, InNative ? InNative : new QWidget)
	, Layout(new FModelLayout(Kind))
{
	Native()->setLayout(Layout);
}

FPanelView::~FPanelView() = default;

FPlace FPanelView::PlaceOf(const SWidget& Model, int32 Index) const
{
	const FSlotLayout Slot = SlotLayout(Model, Index);
	FPlace Place;
	Place.Padding = QMargins(
		qRound(Slot.Padding.Left), qRound(Slot.Padding.Top), qRound(Slot.Padding.Right), qRound(Slot.Padding.Bottom));
	Place.Horizontal = ToAlign(Slot.HAlign, HAlign_Left, HAlign_Center, HAlign_Right);
	Place.Vertical = ToAlign(Slot.VAlign, VAlign_Top, VAlign_Center, VAlign_Bottom);
	Place.Stretch = Slot.Size.SizeRule == FSizeParam::SizeRule_Stretch ? static_cast<double>(Slot.Size.Value) : 0.0;
	return Place;
}

void FPanelView::TakeChildren(SWidget& Model)
{
	FChildren& All = *Model.GetChildren();
	std::vector<std::unique_ptr<FWidgetView>> Former = std::move(Children);
	Children.clear();
	Layout->Clear();
	for (int32 Index = 0; Index < All.Num(); ++Index)
	{
		const TSharedRef<SWidget> Child = All.GetChildAt(Index);
		std::unique_ptr<FWidgetView> View;
		for (std::unique_ptr<FWidgetView>& Candidate : Former)
		{
			// The null widget stands in many places at once.
			if (Candidate && Candidate->Model() == Child && Child != SNullWidget::NullWidget)
			{
				View = std::move(Candidate);
				break;
			}
		}
		if (!View)
		{
			View = World.Make(Child);
		}
		Layout->Add(View->Native(), PlaceOf(Model, Index));
		Children.push_back(std::move(View));
	}
}

void FPanelView::FollowModel(SWidget& Model)
{
	const std::uint32_t Now = StructureVersion(Model);
	if (!bTaken || Now != Structure)
	{
		bTaken = true;
		Structure = Now;
		TakeChildren(Model);
	}
	for (std::size_t Index = 0; Index < Children.size(); ++Index)
	{
		Layout->SetPlace(static_cast<int>(Index), PlaceOf(Model, static_cast<int32>(Index)));
		Children[Index]->Follow();
	}
}

} // namespace Host
