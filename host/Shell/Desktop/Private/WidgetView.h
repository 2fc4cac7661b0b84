// SPDX-License-Identifier: MIT
/** The native counterpart of one widget of the model. */
#pragma once

#include "ModelLayout.h"

#include <QPointer>
#include <QWidget>

#include "Templates/SharedPointer.h"

#include <memory>
#include <vector>

class SWidget;

namespace Host
{

class FViewWorld;

/**
 * Follows its widget: once a frame it reads what the widget says now and tells the native one. It keeps the widget
 * alive in no way; a view whose widget is gone shows nothing new and waits for its end.
 */
class FWidgetView
{
public:
	/** @param InNative  becomes the view's own */
	FWidgetView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, QWidget* InNative);
	virtual ~FWidgetView();
	FWidgetView(const FWidgetView&) = delete;
	FWidgetView& operator=(const FWidgetView&) = delete;

	QWidget* Native() const { return Widget; }
	TSharedPtr<SWidget> Model() const { return WeakModel.Pin(); }
	/** Takes over what the model says now; what is not seen is left out. */
	void Follow();

protected:
	/** What this kind of widget has beyond the common attributes. */
	virtual void FollowModel(SWidget& /*Model*/) {}
	/** Whether the model's visibility shows and hides the native widget. */
	virtual bool FollowsVisibility() const { return true; }

	FViewWorld& World;

private:
	TWeakPtr<SWidget> WeakModel;
	QPointer<QWidget> Widget;
	QString ToolTip;
	int Visibility = -1;
	bool bEnabled = true;
};

/** A widget with children that stand in a row, in a column or on top of each other. */
class FPanelView : public FWidgetView
{
public:
	FPanelView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, EPanelKind Kind, QWidget* InNative = nullptr);
	~FPanelView() override;

protected:
	void FollowModel(SWidget& Model) override;
	/** Where the panel puts one of its children. @param Index  as in GetChildren() */
	virtual FPlace PlaceOf(const SWidget& Model, int32 Index) const;

	FModelLayout* const Layout; // the native widget's

private:
	void TakeChildren(SWidget& Model);

	std::vector<std::unique_ptr<FWidgetView>> Children;
	bool bTaken = false;
	std::uint32_t Structure = 0;
};

} // namespace Host
