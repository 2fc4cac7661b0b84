// SPDX-License-Identifier: MIT
#include "ViewWorld.h"

#include "DetailsView.h"
#include "DockViews.h"
#include "ImageView.h"
#include "InputViews.h"
#include "MultiBoxViews.h"
#include "PanelViews.h"
#include "Pictures.h"
#include "TextView.h"
#include "ViewportView.h"

#include "Host/Rendering.h"
#include "Widgets/SWidget.h"

namespace Host
{

namespace
{

using FMaker = std::unique_ptr<FWidgetView> (*)(FViewWorld&, const TSharedRef<SWidget>&);

// Each makes the views of its kinds of widgets and null for others; the first that answers counts.
constexpr FMaker Makers[] = {
	&MakeViewportView,
	&MakeDetailsView,
	&MakeMultiBoxView,
	&MakeDockView,
	&MakeInputView,
	&MakeTextView,
	&MakeImageView,
	&MakePanelView,
};

} // namespace

FViewWorld::FViewWorld(std::function<void()> InWake)
	: Pictures(std::make_unique<FPictures>(InWake))
	, WakeFrame(std::move(InWake))
{
}

FViewWorld::~FViewWorld()
{
	ClearGraveyard();
}

std::unique_ptr<FWidgetView> FViewWorld::Make(const TSharedRef<SWidget>& Widget)
{
	for (const FMaker Maker : Makers)
	{
		if (std::unique_ptr<FWidgetView> View = Maker(*this, Widget))
		{
			return View;
		}
	}
	return std::make_unique<FPanelView>(*this, Widget, EPanelKind::Stack);
}

void FViewWorld::AskLater(std::function<void()> Call)
{
	Asked.push_back(std::move(Call));
	WakeFrame();
}

FWidgetView* FViewWorld::ViewAt(QWidget* Native) const
{
	for (QWidget* Candidate = Native; Candidate; Candidate = Candidate->parentWidget())
	{
		if (FWidgetView* const View = ViewsByNative.value(Candidate))
		{
			return View;
		}
	}
	return nullptr;
}

FWidgetView* FViewWorld::ViewOf(const SWidget& Model) const
{
	for (FWidgetView* const View : ViewsByNative)
	{
		if (View->Model().Get() == &Model)
		{
			return View;
		}
	}
	return nullptr;
}

void FViewWorld::Register(FWidgetView& View, QWidget* Native)
{
	ViewsByNative.insert(Native, &View);
}

void FViewWorld::Unregister(FWidgetView& View)
{
	for (auto It = ViewsByNative.begin(); It != ViewsByNative.end();)
	{
		It = It.value() == &View ? ViewsByNative.erase(It) : std::next(It);
	}
}

void FViewWorld::Bury(QWidget* Native)
{
	Native->hide();
	Native->setParent(nullptr);
	Graveyard.emplace_back(Native);
}

void FViewWorld::ClearGraveyard()
{
	// A widget may take its children, buried before, along, and views that end with it bury more.
	while (!Graveyard.empty())
	{
		for (const QPointer<QWidget>& Native : std::exchange(Graveyard, {}))
		{
			delete Native.data();
		}
	}
}

} // namespace Host
