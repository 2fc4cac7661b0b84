// SPDX-License-Identifier: MIT
/** Native menus from the model's. */
#pragma once

#include "WidgetView.h"

#include <QObject>

class QAction;
class QMenu;

namespace Host
{

class SMultiBoxItem;

/**
 * Fills a native menu with the pieces of a model's menu and follows them while it is open. Lives as long as the native
 * menu, or until the next Fill.
 */
class FMenuContent : public QObject
{
public:
	/** @param InMenu  owns this */
	FMenuContent(FViewWorld& InWorld, QMenu& InMenu);
	~FMenuContent() override;

	/** Replaces what the menu holds. @param Content  kept alive until the next Fill or Clear */
	void Fill(const TSharedRef<SWidget>& Content);
	void Clear();
	/** Once a frame while the menu is open. */
	void Follow();

	/** The content of a native menu, made when it has none. */
	static FMenuContent& Of(FViewWorld& World, QMenu& Menu);
	/** A native menu that asks the piece for its menu each time that it opens. */
	static QMenu* MenuFor(FViewWorld& World, const TSharedRef<SMultiBoxItem>& Item, QWidget* Parent);

private:
	struct FEntry
	{
		TSharedPtr<SMultiBoxItem> Item;
		QAction* Action; // the menu's
	};

	void Add(const TSharedRef<SMultiBoxItem>& Item);
	void FollowEntry(const FEntry& Entry);
	void AddWidget(const TSharedRef<SWidget>& Widget);

	FViewWorld& World;
	QMenu& Menu;
	TSharedPtr<SWidget> Content;
	std::vector<FEntry> Entries;
	std::vector<std::unique_ptr<FWidgetView>> Views;
};

} // namespace Host
