// SPDX-License-Identifier: MIT
#include "MenuContent.h"

#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QWidgetAction>

#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Framework/MultiBox/MultiBox.h"
#include "Host/MultiBoxes.h"
#include "Widgets/SWidget.h"

namespace Host
{

namespace
{

/** The text of an action, in which an ampersand would underline a letter. */
QString ActionText(const SMultiBoxItem& Item)
{
	QString Text = ToQString(Item.GetLabel()).replace('&', "&&");
	const QString Chord = ToQString(Item.GetChordText());
	return Chord.isEmpty() ? Text : Text + '\t' + Chord;
}

} // namespace

FMenuContent::FMenuContent(FViewWorld& InWorld, QMenu& InMenu)
	: QObject(&InMenu)
	, World(InWorld)
	, Menu(InMenu)
{
	World.OpenContents.push_back(this);
}

FMenuContent::~FMenuContent()
{
	std::erase(World.OpenContents, this);
}

FMenuContent& FMenuContent::Of(FViewWorld& World, QMenu& Menu)
{
	for (QObject* const Child : Menu.children())
	{
		if (auto* const Existing = dynamic_cast<FMenuContent*>(Child))
		{
			return *Existing;
		}
	}
	return *new FMenuContent(World, Menu);
}

QMenu* FMenuContent::MenuFor(FViewWorld& World, const TSharedRef<SMultiBoxItem>& Item, QWidget* Parent)
{
	auto* const Native = new QMenu(Parent);
	Native->setToolTipsVisible(true);
	const TWeakPtr<SMultiBoxItem> Weak = Item;
	connect(Native, &QMenu::aboutToShow, Native,
		[&World, Native, Weak]
		{
			if (const TSharedPtr<SMultiBoxItem> Current = Weak.Pin())
			{
				Of(World, *Native).Fill(Current->OpenMenu());
			}
		});
	return Native;
}

void FMenuContent::Clear()
{
	Entries.clear();
	Views.clear();
	Menu.clear();
	for (QMenu* const Sub : Menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
	{
		World.Bury(Sub);
	}
	Content.Reset();
}

void FMenuContent::Fill(const TSharedRef<SWidget>& NewContent)
{
	Clear();
	Content = NewContent;
	if (dynamic_cast<const SMultiBoxWidget*>(&NewContent.Get()))
	{
		for (const TSharedRef<SMultiBoxItem>& Item : GetMultiBoxItems(NewContent))
		{
			Add(Item);
		}
	}
	else
	{
		AddWidget(NewContent);
	}
	if (Menu.isEmpty())
	{
		Menu.addAction("(empty)")->setEnabled(false);
	}
	Follow();
}

void FMenuContent::AddWidget(const TSharedRef<SWidget>& Widget)
{
	std::unique_ptr<FWidgetView> View = World.Make(Widget);
	auto* const Action = new QWidgetAction(&Menu);
	View->Follow();
	Action->setDefaultWidget(View->Native());
	Menu.addAction(Action);
	Views.push_back(std::move(View));
}

void FMenuContent::Add(const TSharedRef<SMultiBoxItem>& Item)
{
	QAction* Action = nullptr;
	switch (Item->GetKind())
	{
		case EMultiBoxItem::Separator:
			Action = Menu.addSeparator();
			break;
		case EMultiBoxItem::Heading:
		{
			auto* const Label = new QLabel(ToQString(Item->GetLabel()).toUpper());
			Label->setContentsMargins(12, 7, 12, 3);
			QFont Font = Label->font();
			Font.setPointSizeF(Font.pointSizeF() * 0.85);
			Label->setFont(Font);
			QPalette Quiet = Label->palette();
			Quiet.setColor(QPalette::WindowText, Theme::SubduedText);
			Label->setPalette(Quiet);
			auto* const Heading = new QWidgetAction(&Menu);
			Heading->setDefaultWidget(Label);
			Heading->setEnabled(false);
			Menu.addAction(Heading);
			Action = Heading;
			break;
		}
		case EMultiBoxItem::Widget:
			if (Item->GetInfo().Content.IsValid())
			{
				AddWidget(Item->GetInfo().Content.ToSharedRef());
			}
			return;
		case EMultiBoxItem::SubMenu:
		case EMultiBoxItem::ComboButton:
			Action = Menu.addMenu(MenuFor(World, Item, &Menu));
			break;
		case EMultiBoxItem::Button:
		{
			Action = Menu.addAction(QString());
			const TWeakPtr<SMultiBoxItem> Weak = Item;
			connect(Action, &QAction::triggered, this,
				[Weak]
				{
					// Held: the action may end the menu that it stands in.
					if (const TSharedPtr<SMultiBoxItem> Current = Weak.Pin())
					{
						Current->Press();
					}
				});
			if (Item->GetActionType() == EUserInterfaceActionType::RadioButton)
			{
				// A group of one draws as a radio button; the model knows what excludes what.
				auto* const Group = new QActionGroup(Action);
				Group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
				Group->addAction(Action);
			}
			break;
		}
	}
	Entries.push_back({Item, Action});
}

void FMenuContent::FollowEntry(const FEntry& Entry)
{
	const SMultiBoxItem& Item = *Entry.Item;
	QAction& Action = *Entry.Action;
	const EVisibility Visibility = Item.GetItemVisibility();
	Action.setVisible(Visibility.IsVisible());
	if (Item.GetKind() == EMultiBoxItem::Separator || Item.GetKind() == EMultiBoxItem::Heading)
	{
		return;
	}
	Action.setEnabled(Item.IsItemEnabled());
	Action.setText(ActionText(Item));
	Action.setToolTip(ToQString(Item.GetToolTip()));
	if (Action.icon().isNull())
	{
		Action.setIcon(World.Brushes.Icon(Item.GetIcon()));
	}
	if (Item.IsCheckable())
	{
		Action.setCheckable(true);
		Action.setChecked(Item.GetCheckState() == ECheckBoxState::Checked);
	}
}

void FMenuContent::Follow()
{
	for (const FEntry& Entry : Entries)
	{
		FollowEntry(Entry);
	}
	for (const std::unique_ptr<FWidgetView>& View : Views)
	{
		View->Follow();
	}
}

} // namespace Host
