// SPDX-License-Identifier: MIT

#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
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

FReply SWidget::OnKeyChar(const FGeometry&, const FCharacterEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnFocusReceived(const FGeometry&, const FFocusEvent&)
{
	return FReply::Unhandled();
}

void SWidget::OnFocusLost(const FFocusEvent&) {}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplicationBase::IsInitialized() &&
		   FSlateApplicationBase::Get().GetKeyboardFocusedWidget().Get() == this;
}

bool SWidget::HasFocusedDescendants() const
{
	if (!FSlateApplicationBase::IsInitialized())
	{
		return false;
	}
	const TSharedPtr<SWidget> Focused = FSlateApplicationBase::Get().GetKeyboardFocusedWidget();
	return Focused.IsValid() && Focused.Get() != this && Host::IsBelow(*Focused, *this);
}

void SWidget::Invalidate(EInvalidateWidgetReason InvalidateReason)
{
	if (InvalidateReason != EInvalidateWidgetReason::None)
	{
		Host::FWidgetAccess::CountInvalidation();
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
