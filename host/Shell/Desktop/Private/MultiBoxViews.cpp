// SPDX-License-Identifier: MIT
#include "MultiBoxViews.h"

#include <QFrame>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "MenuContent.h"
#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Framework/MultiBox/MultiBox.h"
#include "Host/MultiBoxes.h"
#include "Host/WidgetTree.h"

namespace Host
{

namespace
{

constexpr int ToolIcon = 20;
constexpr int SmallToolIcon = 16;

/** What a tool bar's style asks of one button. */
QString SheetOf(FName Style)
{
	const QString Name = ToQString(Style);
	const QString Plate = "QToolButton { background: #383838; padding: 5px 10px; %1 }"
						  "QToolButton:hover { background: #4c4c4c; } QToolButton:pressed { background: #2f2f2f; }"
						  "QToolButton:focus { border-color: #0e86ff; } QToolButton:checked { background: #0070e0; }";
	if (Name.contains("BackplateLeft"))
	{
		return Plate.arg("border-top-right-radius: 0; border-bottom-right-radius: 0;");
	}
	if (Name.contains("BackplateRight"))
	{
		return Plate.arg("border-top-left-radius: 0; border-bottom-left-radius: 0; padding: 5px 7px;");
	}
	if (Name.contains("BackplateCenter"))
	{
		return Plate.arg("border-radius: 0;");
	}
	return Name.contains("Callout") ? Plate.arg(QString()) : QString();
}

/** One piece of a tool bar. */
class FToolItem
{
public:
	FToolItem(FViewWorld& InWorld, const TSharedRef<SMultiBoxItem>& InItem, bool bFocusable)
		: World(InWorld)
		, Item(InItem)
	{
		switch (InItem->GetKind())
		{
			case EMultiBoxItem::Separator:
				Native = new QFrame;
				Native->setFixedSize(1, 22);
				Native->setStyleSheet("background: #4a4a4a;");
				break;
			case EMultiBoxItem::Heading:
				Native = new QLabel;
				break;
			case EMultiBoxItem::Widget:
				if (InItem->GetInfo().Content.IsValid())
				{
					Inner = World.Make(InItem->GetInfo().Content.ToSharedRef());
					Native = Inner->Native();
				}
				else
				{
					Native = new QWidget;
				}
				break;
			case EMultiBoxItem::Button:
			case EMultiBoxItem::SubMenu:
			case EMultiBoxItem::ComboButton:
				MakeButton(*InItem, bFocusable);
				break;
		}
	}

	~FToolItem()
	{
		if (Native && !Inner)
		{
			World.Bury(Native);
		}
	}

	QWidget* NativeWidget() const { return Native; }
	TSharedPtr<SMultiBoxItem> ModelItem() const { return Item.Pin(); }

	void Follow()
	{
		const TSharedPtr<SMultiBoxItem> Current = Item.Pin();
		if (!Current.IsValid() || !Native)
		{
			return;
		}
		const bool bVisible = Current->GetItemVisibility().IsVisible();
		if (Native->isHidden() == bVisible)
		{
			Native->setVisible(bVisible);
		}
		if (Inner)
		{
			Inner->Follow();
		}
		else if (Button)
		{
			FollowButton(*Current);
		}
		else if (auto* const Label = dynamic_cast<QLabel*>(Native.data()))
		{
			Label->setText(ToQString(Current->GetLabel()));
		}
	}

private:
	void MakeButton(const SMultiBoxItem& Model, bool bFocusable)
	{
		Button = new QToolButton;
		Native = Button;
		Button->setFocusPolicy(bFocusable ? Qt::TabFocus : Qt::NoFocus);
		Button->setStyleSheet(SheetOf(Model.GetStyleName()));
		const int Size = Model.GetInfo().bSmallIcon ? SmallToolIcon : ToolIcon;
		Button->setIconSize(QSize(Size, Size));
		Button->setObjectName(ToQString(Model.GetItemName()));
		if (Model.GetKind() == EMultiBoxItem::Button)
		{
			const TWeakPtr<SMultiBoxItem> Weak = Item;
			QObject::connect(Button, &QToolButton::clicked, Button,
				[Weak]
				{
					if (const TSharedPtr<SMultiBoxItem> Current = Weak.Pin())
					{
						Current->Press();
					}
				});
			return;
		}
		Button->setPopupMode(QToolButton::InstantPopup);
		Button->setMenu(FMenuContent::MenuFor(World, Item.Pin().ToSharedRef(), Button));
	}

	void FollowButton(const SMultiBoxItem& Model)
	{
		const bool bOpens = Model.GetKind() != EMultiBoxItem::Button;
		const QString Label = ToQString(Model.GetLabel());
		const QString ToolTip = ToQString(Model.GetToolTip());
		QString Text = Model.IsLabelShown() ? Label : QString();
		if (bOpens)
		{
			Text += Text.isEmpty() ? QString(QChar(0x25be)) : QString(' ') + QChar(0x25be);
		}
		const FSlateBrush* const Brush = Model.GetIcon();
		if (Brush != Icon || Text != Button->text())
		{
			Icon = Brush;
			Button->setIcon(World.Brushes.Icon(Brush));
			Button->setText(Text);
			Button->setToolButtonStyle(Button->icon().isNull() ? Qt::ToolButtonTextOnly
									   : Text.isEmpty()		   ? Qt::ToolButtonIconOnly
															   : Qt::ToolButtonTextBesideIcon);
			Button->setAccessibleName(Label.isEmpty() ? ToolTip : Label);
		}
		if (Button->toolTip() != ToolTip)
		{
			Button->setToolTip(ToolTip);
		}
		Button->setEnabled(Model.IsItemEnabled());
		if (Model.IsCheckable())
		{
			Button->setCheckable(true);
			Button->setChecked(Model.GetCheckState() == ECheckBoxState::Checked);
		}
	}

	FViewWorld& World;
	TWeakPtr<SMultiBoxItem> Item;
	QPointer<QWidget> Native;
	QToolButton* Button = nullptr;
	std::unique_ptr<FWidgetView> Inner;
	const FSlateBrush* Icon = nullptr;
};

/** Common to what is built anew when the pieces change. */
class FMultiBoxView : public FWidgetView
{
public:
	using FWidgetView::FWidgetView;

protected:
	virtual void Build(const TArray<TSharedRef<SMultiBoxItem>>& Items) = 0;
	virtual void FollowItems() = 0;

	void FollowModel(SWidget& Model) override
	{
		const TArray<TSharedRef<SMultiBoxItem>> Items = GetMultiBoxItems(Model.AsShared());
		bool bSame = Items.Num() == static_cast<int32>(Known.size()) && bBuilt;
		for (int32 Index = 0; bSame && Index < Items.Num(); ++Index)
		{
			bSame = Known[static_cast<std::size_t>(Index)].Pin() == Items[Index];
		}
		if (!bSame)
		{
			Known.clear();
			for (const TSharedRef<SMultiBoxItem>& Item : Items)
			{
				Known.emplace_back(Item);
			}
			bBuilt = true;
			Build(Items);
		}
		FollowItems();
	}

private:
	std::vector<TWeakPtr<SMultiBoxItem>> Known;
	bool bBuilt = false;
};

class FToolBarView : public FMultiBoxView
{
public:
	FToolBarView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, EPanelKind Kind, bool bInFocusable)
		: FMultiBoxView(InWorld, InModel, new QWidget)
		, Layout(new FModelLayout(Kind))
		, bFocusable(bInFocusable)
	{
		Native()->setLayout(Layout);
		Native()->setAccessibleName("Tool bar");
	}

protected:
	void Build(const TArray<TSharedRef<SMultiBoxItem>>& Pieces) override
	{
		Layout->Clear();
		Items.clear();
		for (const TSharedRef<SMultiBoxItem>& Piece : Pieces)
		{
			Items.push_back(std::make_unique<FToolItem>(World, Piece, bFocusable));
			FPlace Place;
			Place.Vertical = EPlaceAlign::Center;
			const QString Style = ToQString(Piece->GetStyleName());
			const int Gap = Style.contains("BackplateLeft") ? 0 : 3;
			Place.Padding = QMargins(Style.contains("BackplateRight") ? 1 : 3, 2, Gap, 2);
			Layout->Add(Items.back()->NativeWidget(), Place);
		}
	}

	void FollowItems() override
	{
		for (const std::unique_ptr<FToolItem>& Item : Items)
		{
			Item->Follow();
		}
	}

private:
	FModelLayout* Layout;
	std::vector<std::unique_ptr<FToolItem>> Items;
	const bool bFocusable;
};

class FMenuBarView : public FMultiBoxView
{
public:
	FMenuBarView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FMultiBoxView(InWorld, InModel, new QMenuBar)
	{
		Bar().setNativeMenuBar(false);
		Bar().setAccessibleName("Main menu");
	}

protected:
	void Build(const TArray<TSharedRef<SMultiBoxItem>>& Pieces) override
	{
		Bar().clear();
		for (const auto& [Item, Menu] : Menus)
		{
			World.Bury(Menu);
		}
		Menus.clear();
		for (const TSharedRef<SMultiBoxItem>& Piece : Pieces)
		{
			if (Piece->GetKind() == EMultiBoxItem::SubMenu)
			{
				QMenu* const Menu = FMenuContent::MenuFor(World, Piece, &Bar());
				Menus.emplace_back(Piece, Menu);
				Bar().addMenu(Menu);
			}
		}
	}

	void FollowItems() override
	{
		QStringList Taken;
		for (const auto& [Weak, Menu] : Menus)
		{
			const TSharedPtr<SMultiBoxItem> Item = Weak.Pin();
			if (!Item.IsValid())
			{
				continue;
			}
			const QString Title = WithMnemonic(ToQString(Item->GetLabel()), Taken);
			if (Menu->title() != Title)
			{
				Menu->setTitle(Title);
			}
			Menu->menuAction()->setVisible(Item->GetItemVisibility().IsVisible());
			Menu->menuAction()->setEnabled(Item->IsItemEnabled());
		}
	}

private:
	QMenuBar& Bar() const { return *static_cast<QMenuBar*>(Native()); }

	/** Marks the first letter that no menu before has, for the Alt key. */
	static QString WithMnemonic(const QString& Label, QStringList& Taken)
	{
		for (qsizetype Index = 0; Index < Label.size(); ++Index)
		{
			const QString Letter = Label.mid(Index, 1).toLower();
			if (Letter.at(0).isLetterOrNumber() && !Taken.contains(Letter))
			{
				Taken << Letter;
				return Label.left(Index).replace('&', "&&") + '&' + Label.mid(Index).replace('&', "&&");
			}
		}
		return QString(Label).replace('&', "&&");
	}

	std::vector<std::pair<TWeakPtr<SMultiBoxItem>, QMenu*>> Menus;
};

} // namespace

std::unique_ptr<FWidgetView> MakeMultiBoxView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	const auto* const Box = dynamic_cast<const SMultiBoxWidget*>(&Model.Get());
	if (!Box || !Box->GetMultiBox().IsValid())
	{
		return nullptr;
	}
	const FMultiBox& Pieces = *Box->GetMultiBox();
	switch (Pieces.GetType())
	{
		case EMultiBoxType::MenuBar:
			return std::make_unique<FMenuBarView>(World, Model);
		case EMultiBoxType::Menu:
		case EMultiBoxType::VerticalToolBar:
			return std::make_unique<FToolBarView>(World, Model, EPanelKind::Column, Pieces.bIsFocusable);
		default:
			return std::make_unique<FToolBarView>(World, Model, EPanelKind::Row, Pieces.bIsFocusable);
	}
}

} // namespace Host
