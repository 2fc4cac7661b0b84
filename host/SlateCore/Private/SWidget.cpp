// SPDX-License-Identifier: MIT

#include "Widgets/SWidget.h"

#include "Host/WidgetTree.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SNullWidget.h"

namespace
{
class SNullWidgetContent : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SNullWidgetContent) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}
};

uint64 InvalidationCount = 0;
} // namespace

TSharedRef<SWidget> SNullWidget::NullWidget = SNew(SNullWidgetContent);

TAlwaysValidWidget::TAlwaysValidWidget()
	: Widget(SNullWidget::NullWidget)
{
}

SWidget::~SWidget() = default;

FReply SWidget::OnKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

void SWidget::Invalidate(EInvalidateWidgetReason InvalidateReason)
{
	if (InvalidateReason != EInvalidateWidgetReason::None)
	{
		++InvalidationCount;
	}
}

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	ToolTipText = Args._ToolTipText;
	Visibility = Args._Visibility;
	EnabledState = Args._IsEnabled;
	Tag = Args._Tag;
	MetaData = Args.MetaData;
}

const FName& FTagMetaData::GetTypeId()
{
	static const FName Id(TEXT("FTagMetaData"));
	return Id;
}

namespace Host
{
uint64 WidgetInvalidationCount()
{
	return InvalidationCount;
}

void ForEachWidget(const TSharedRef<SWidget>& Root, TFunctionRef<void(const TSharedRef<SWidget>&)> Visit)
{
	Visit(Root);
	const FChildren& Children = *Root->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ForEachWidget(Children.GetChildAt(Index), Visit);
	}
}

TArray<TSharedRef<SWidget>> FindWidgetsOfType(const TSharedRef<SWidget>& Root, FName Type)
{
	TArray<TSharedRef<SWidget>> Found;
	ForEachWidget(Root,
		[&](const TSharedRef<SWidget>& Widget)
		{
			if (Widget->GetType() == Type)
			{
				Found.Add(Widget);
			}
		});
	return Found;
}
} // namespace Host
