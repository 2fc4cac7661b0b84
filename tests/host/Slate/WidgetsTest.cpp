// SPDX-License-Identifier: MIT
#include "CorePrinting.h"
#include "Host/WidgetTree.h"
#include "Styling/AppStyle.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
DECLARE_DELEGATE_RetVal_OneParam(int32, FOnAdd, int32);

/** Has one argument of each kind. */
class SSample : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SSample)
		: _Size(3)
	{
	}
	SLATE_ARGUMENT(int32, Size)
	SLATE_ATTRIBUTE(FText, Label)
	SLATE_EVENT(FOnAdd, OnAdd)
	SLATE_NAMED_SLOT(FArguments, Header)
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FString& InName, int32& InCount)
	{
		Args = InArgs;
		Name = InName;
		++InCount;
		Self = SharedThis(this);
		ChildSlot[SNew(SVerticalBox) + SVerticalBox::Slot()[InArgs._Header.Widget] +
				  SVerticalBox::Slot()[InArgs._Content.Widget]];
	}

	int32 AddTen(int32 Value) { return Value + 10; }
	FText GetName() const { return FText::FromString(Name); }

	FArguments Args;
	FString Name;
	TWeakPtr<SSample> Self;
};

TSharedRef<STextBlock> MakeText(const TCHAR* Text)
{
	return SNew(STextBlock).Text(FText::FromString(Text));
}
} // namespace

TEST(Widgets, AreMadeFromArgumentsAttributesEventsAndSlots)
{
	int32 Count = 0;
	const TSharedRef<STextBlock> Header = MakeText(TEXT("Header"));
	const TSharedRef<STextBlock> Content = MakeText(TEXT("Content"));
	TSharedPtr<SSample> Sample;
	SAssignNew(Sample, SSample, FString(TEXT("Name")), Count)
		.Size(7)
		.Label_Lambda([&Count] { return FText::AsNumber(Count); })
		.OnAdd_Lambda([](int32 Value) { return Value + 1; })
		.Visibility(EVisibility::Hidden)
		.Tag(TEXT("Tagged"))
		.Header()[Header][Content];

	EXPECT_EQ(Count, 1);
	EXPECT_EQ(Sample->Args._Size, 7);
	EXPECT_EQ(Sample->Args._Label.Get().ToString(), FString(TEXT("1")));
	Count = 5;
	EXPECT_EQ(Sample->Args._Label.Get().ToString(), FString(TEXT("5")));
	EXPECT_EQ(Sample->Args._OnAdd.Execute(2), 3);
	EXPECT_EQ(Sample->GetVisibility(), EVisibility::Hidden);
	EXPECT_EQ(Sample->GetTag(), FName(TEXT("Tagged")));
	EXPECT_EQ(Sample->GetType(), FName(TEXT("SSample")));
	EXPECT_EQ(Sample->Self.Pin(), Sample);
	EXPECT_EQ(Header->GetParentWidget()->GetParentWidget(), Sample);
	EXPECT_EQ(Content->GetParentWidget(), Header->GetParentWidget());
}

TEST(Widgets, AttributesAndEventsBindToWidgetsWeakly)
{
	int32 Count = 0;
	TSharedPtr<SSample> Source = SNew(SSample, FString(TEXT("Source")), Count);
	const TSharedRef<SSample> User =
		SNew(SSample, FString(), Count).Label(Source.Get(), &SSample::GetName).OnAdd(Source.Get(), &SSample::AddTen);
	EXPECT_EQ(User->Args._Label.Get().ToString(), FString(TEXT("Source")));
	EXPECT_EQ(User->Args._OnAdd.Execute(1), 11);
	Source.Reset();
	EXPECT_FALSE(User->Args._OnAdd.IsBound());
	EXPECT_EQ(User->Args._Label.Get().ToString(), FString(TEXT("Source")));
}

TEST(Widgets, ASlotWithoutAWidgetHoldsTheNullWidget)
{
	const TSharedRef<SBox> Box = SNew(SBox);
	EXPECT_EQ(Box->GetContent(), SNullWidget::NullWidget);
	EXPECT_FALSE(SNullWidget::NullWidget->GetParentWidget().IsValid());
	EXPECT_FALSE(Box->GetWidthOverride().IsSet());
}

TEST(Widgets, AChildKnowsOnlyItsPresentParent)
{
	const TSharedRef<STextBlock> Child = MakeText(TEXT("Child"));
	const TSharedRef<SBox> First = SNew(SBox)[Child];
	const TSharedRef<SBox> Second = SNew(SBox)[Child];
	EXPECT_EQ(Child->GetParentWidget(), Second);
	First->SetContent(SNullWidget::NullWidget);
	EXPECT_EQ(Child->GetParentWidget(), Second);
	Second->SetContent(SNullWidget::NullWidget);
	EXPECT_FALSE(Child->GetParentWidget().IsValid());
}

TEST(Widgets, BoxesGrowAndShrinkBySlots)
{
	TSharedRef<SVerticalBox> Box = SNew(SVerticalBox) +
								   SVerticalBox::Slot().AutoHeight().Padding(1.0f, 2.0f)[MakeText(TEXT("A"))] +
								   SVerticalBox::Slot().FillHeight(0.5f).HAlign(HAlign_Right)[MakeText(TEXT("B"))];
	const TSharedRef<STextBlock> Middle = MakeText(TEXT("M"));
	Box->AddSlot(1).AutoHeight()[Middle];

	ASSERT_EQ(Box->NumSlots(), 3);
	EXPECT_EQ(Box->GetChildren()->GetChildAt(1), Middle);
	EXPECT_EQ(Box->GetSlot(0).GetPadding(), FMargin(1.0f, 2.0f, 1.0f, 2.0f));
	EXPECT_EQ(Box->GetSlot(0).GetSizeParam().SizeRule, FSizeParam::SizeRule_Auto);
	EXPECT_EQ(Box->GetSlot(2).GetSizeParam().Value, 0.5f);
	EXPECT_EQ(Box->GetSlot(2).GetHorizontalAlignment(), HAlign_Right);
	EXPECT_EQ(Box->RemoveSlot(Middle), 1);
	EXPECT_EQ(Box->RemoveSlot(Middle), INDEX_NONE);
	Box->ClearChildren();
	EXPECT_EQ(Box->NumSlots(), 0);
}

TEST(Widgets, OverlaysKeepTheirSlotsInDepthOrder)
{
	const TSharedRef<STextBlock> Back = MakeText(TEXT("Back"));
	const TSharedRef<STextBlock> Front = MakeText(TEXT("Front"));
	const TSharedRef<STextBlock> Between = MakeText(TEXT("Between"));
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay) + SOverlay::Slot()[Back];
	Overlay->AddSlot(10)[Front];
	Overlay->AddSlot(5)[Between];
	ASSERT_EQ(Overlay->GetNumWidgets(), 3);
	EXPECT_EQ(Overlay->GetChildren()->GetChildAt(0), Back);
	EXPECT_EQ(Overlay->GetChildren()->GetChildAt(1), Between);
	EXPECT_EQ(Overlay->GetChildren()->GetChildAt(2), Front);
	EXPECT_TRUE(Overlay->RemoveSlot(Between));
	EXPECT_FALSE(Overlay->RemoveSlot(Between));
}

TEST(Widgets, AreFoundInATreeByType)
{
	const TSharedRef<SWidget> Root = SNew(SBox)[SNew(SHorizontalBox) + SHorizontalBox::Slot()[MakeText(TEXT("A"))] +
												SHorizontalBox::Slot()[SNew(SBox)[MakeText(TEXT("B"))]]];
	EXPECT_EQ(Host::FindWidgetsOfType(Root, TEXT("STextBlock")).Num(), 2);
	EXPECT_EQ(Host::FindWidgetsOfType(Root, TEXT("SBox")).Num(), 2);
}

TEST(Widgets, CarryMetadata)
{
	const TSharedRef<SBox> Box = SNew(SBox).AddMetaData<FTagMetaData>(TEXT("Search"));
	ASSERT_TRUE(Box->GetMetaData<FTagMetaData>().IsValid());
	EXPECT_EQ(Box->GetMetaData<FTagMetaData>()->Tag, FName(TEXT("Search")));
	const TSharedRef<SBox> Plain = SNew(SBox);
	EXPECT_FALSE(Plain->GetMetaData<FTagMetaData>().IsValid());
}

TEST(Widgets, TextTakesItsStyleFromAStyleSet)
{
	const TSharedRef<STextBlock> Text = SNew(STextBlock).TextStyle(FAppStyle::Get(), TEXT("TextBlock.ShadowedText"));
	EXPECT_EQ(Text->GetTextStyle().ShadowOffset, FVector2D(1.0, 1.0));
	EXPECT_EQ(Text->GetColorAndOpacity(), FSlateColor(FLinearColor::White));
	Text->SetColorAndOpacity(FSlateColor(FLinearColor::Black));
	EXPECT_EQ(Text->GetColorAndOpacity(), FSlateColor(FLinearColor::Black));
	const TSharedRef<STextBlock> Plain = SNew(STextBlock);
	EXPECT_EQ(Plain->GetColorAndOpacity(), FSlateColor::UseForeground());
}

TEST(Widgets, AWindowTellsOnceThatItCloses)
{
	int Closed = 0;
	const TSharedRef<SWindow> Window = SNew(SWindow).Title(FText::FromString(TEXT("Frame")));
	Window->SetOnWindowClosed(FOnWindowClosed::CreateLambda([&](const TSharedRef<SWindow>&) { ++Closed; }));
	Window->RequestDestroyWindow();
	Window->RequestDestroyWindow();
	EXPECT_EQ(Closed, 1);
}

TEST(Widgets, ATabAsksItsOwnerBeforeItCloses)
{
	bool bMayClose = false;
	int Closed = 0;
	const TSharedRef<SDockTab> Tab = SNew(SDockTab)
										 .Label(FText::FromString(TEXT("Tab")))
										 .OnCanCloseTab_Lambda([&] { return bMayClose; })
										 .OnTabClosed_Lambda([&](TSharedRef<SDockTab>) { ++Closed; });
	EXPECT_FALSE(Tab->RequestCloseTab());
	bMayClose = true;
	EXPECT_TRUE(Tab->RequestCloseTab());
	EXPECT_FALSE(Tab->RequestCloseTab());
	EXPECT_EQ(Closed, 1);
}

TEST(Styles, AreFoundByNameWhileRegistered)
{
	FSlateStyleSet Style(TEXT("Garden"));
	Style.SetContentRoot(TEXT("/images"));
	Style.Set(TEXT("Garden.Tree"), new FSlateNoResource(FVector2D(40.0, 40.0)));
	Style.Set(TEXT("Garden.Depth"), 2.5f);
	FSlateStyleRegistry::RegisterSlateStyle(Style);

	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("Garden")), &Style);
	EXPECT_EQ(FSlateIcon(TEXT("Garden"), TEXT("Garden.Tree")).GetIcon(), Style.GetBrush(TEXT("Garden.Tree")));
	EXPECT_EQ(Style.GetBrush(TEXT("Garden"), ".Tree")->GetImageSize(), FVector2D(40.0, 40.0));
	EXPECT_EQ(Style.GetFloat(TEXT("Garden.Depth")), 2.5f);
	EXPECT_TEXT_EQ(Style.RootToContentDir(TEXT("Tree"), TEXT(".png")), TEXT("/images/Tree.png"));
	EXPECT_NE(Style.GetBrush(TEXT("Garden.Missing")), nullptr);
	EXPECT_EQ(Style.GetOptionalBrush(TEXT("Garden.Missing")), nullptr);

	FSlateStyleRegistry::UnRegisterSlateStyle(Style);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("Garden")), nullptr);
	EXPECT_EQ(FSlateIcon(TEXT("Garden"), TEXT("Garden.Tree")).GetIcon(), nullptr);
	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(FAppStyle::GetAppStyleSetName()), &FAppStyle::Get());
}
