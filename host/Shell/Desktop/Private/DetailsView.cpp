// SPDX-License-Identifier: MIT
#include "DetailsView.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Host/Details.h"
#include "Widgets/SWidget.h"

namespace Host
{

namespace
{

enum EColumn
{
	NameColumn,
	ValueColumn,
	ResetColumn,
	NumColumns
};

constexpr int ResetWidth = 26;
const QString ResetSign(QChar(0x21ba));

/** One row, and the item that shows it. */
class FRowItem : public QTreeWidgetItem
{
public:
	explicit FRowItem(const TSharedRef<FDetailsRow>& InRow)
		: QTreeWidgetItem(UserType)
		, Row(InRow)
	{
	}

	/** Takes over the value of this moment. */
	void Follow()
	{
		const bool bReadOnly = Row->IsReadOnly();
		Set(NameColumn, ToQString(Row->GetName()));
		if (Row->GetKind() == EDetailsValue::Bool)
		{
			const Qt::CheckState State = Row->HasMultipleValues() ? Qt::PartiallyChecked
										 : Row->IsChecked()		  ? Qt::Checked
																  : Qt::Unchecked;
			if (data(ValueColumn, Qt::CheckStateRole) != QVariant(State))
			{
				setCheckState(ValueColumn, State);
			}
		}
		else
		{
			Set(ValueColumn, ToQString(Row->GetValueText()));
		}
		if (Row->GetKind() == EDetailsValue::Color)
		{
			const FColor Color = Row->GetColor();
			setData(ValueColumn, Qt::DecorationRole, QColor(Color.R, Color.G, Color.B));
		}
		Set(ResetColumn, !bReadOnly && Row->DiffersFromDefault() ? ResetSign : QString());
		const bool bText = Row->GetKind() != EDetailsValue::Bool && Row->GetKind() != EDetailsValue::Group &&
						   Row->GetKind() != EDetailsValue::Map && Row->GetKind() != EDetailsValue::Array;
		Qt::ItemFlags Flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
		Flags.setFlag(Qt::ItemIsEditable, bText && !bReadOnly);
		Flags.setFlag(Qt::ItemIsUserCheckable, Row->GetKind() == EDetailsValue::Bool && !bReadOnly);
		if (flags() != Flags)
		{
			setFlags(Flags);
			setForeground(ValueColumn, bReadOnly ? Theme::SubduedText : Theme::Text);
		}
		if (isHidden() == Row->IsVisible())
		{
			setHidden(!Row->IsVisible());
		}
	}

	const TSharedRef<FDetailsRow> Row;

private:
	void Set(int Column, const QString& Text)
	{
		if (text(Column) != Text)
		{
			setText(Column, Text);
		}
	}
};

FRowItem* RowOf(QTreeWidgetItem* Item)
{
	return dynamic_cast<FRowItem*>(Item);
}

/** Edits a value as text or by choice, and says why a text is none. */
class FValueDelegate : public QStyledItemDelegate
{
public:
	explicit FValueDelegate(QTreeWidget& InTree)
		: QStyledItemDelegate(&InTree)
		, Tree(InTree)
	{
	}

	QWidget* createEditor(QWidget* Parent, const QStyleOptionViewItem& Option, const QModelIndex& Index) const override
	{
		const FRowItem* const Item = RowOf(Tree.itemFromIndex(Index));
		if (!Item || Index.column() != ValueColumn)
		{
			return nullptr;
		}
		if (Item->Row->GetKind() == EDetailsValue::Choice)
		{
			auto* const Choice = new QComboBox(Parent);
			for (const FText& Name : Item->Row->GetChoices())
			{
				Choice->addItem(ToQString(Name));
			}
			Choice->setCurrentText(Item->text(ValueColumn));
			return Choice;
		}
		return QStyledItemDelegate::createEditor(Parent, Option, Index);
	}

	void setModelData(QWidget* Editor, QAbstractItemModel*, const QModelIndex& Index) const override
	{
		FRowItem* const Item = RowOf(Tree.itemFromIndex(Index));
		if (!Item)
		{
			return;
		}
		const auto* const Choice = qobject_cast<QComboBox*>(Editor);
		const auto* const Line = qobject_cast<QLineEdit*>(Editor);
		const QString Text = Choice ? Choice->currentText() : Line ? Line->text() : QString();
		FText Reason;
		if (Text != Item->text(ValueColumn) && !Item->Row->SetValue(ToFString(Text), Reason))
		{
			QToolTip::showText(Editor->mapToGlobal(QPoint(0, Editor->height())), ToQString(Reason), &Tree);
		}
		Item->Follow();
	}

private:
	QTreeWidget& Tree;
};

class FDetailsNative : public QWidget
{
public:
	FDetailsNative()
	{
		auto* const Column = new QVBoxLayout(this);
		Column->setContentsMargins(0, 0, 0, 0);
		Column->setSpacing(0);
		Title = new QLabel;
		Title->setContentsMargins(10, 7, 10, 7);
		Title->setTextFormat(Qt::PlainText);
		Column->addWidget(Title);
		Search = new QLineEdit;
		Search->setPlaceholderText("Search");
		Search->setClearButtonEnabled(true);
		Search->setAccessibleName("Search in the details");
		auto* const Frame = new QWidget;
		auto* const FrameRow = new QVBoxLayout(Frame);
		FrameRow->setContentsMargins(6, 4, 6, 6);
		FrameRow->addWidget(Search);
		SearchFrame = Frame;
		Column->addWidget(Frame);
		Tree = new QTreeWidget;
		Tree->setColumnCount(NumColumns);
		Tree->setHeaderHidden(true);
		Tree->header()->setStretchLastSection(false);
		Tree->header()->setMinimumSectionSize(ResetWidth);
		Tree->header()->setSectionResizeMode(NameColumn, QHeaderView::Interactive);
		Tree->header()->setSectionResizeMode(ValueColumn, QHeaderView::Stretch);
		Tree->header()->setSectionResizeMode(ResetColumn, QHeaderView::Fixed);
		Tree->header()->resizeSection(ResetColumn, ResetWidth);
		Tree->setItemDelegate(new FValueDelegate(*Tree));
		Tree->setEditTriggers(
			QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
		Tree->setUniformRowHeights(true);
		Tree->setIndentation(14);
		Tree->setAccessibleName("Details");
		Column->addWidget(Tree, 1);
		Empty = new QLabel("Select an object to view its details.");
		Empty->setAlignment(Qt::AlignCenter);
		Empty->setWordWrap(true);
		Empty->setContentsMargins(12, 12, 12, 12);
		QPalette Quiet = Empty->palette();
		Quiet.setColor(QPalette::WindowText, Theme::SubduedText);
		Empty->setPalette(Quiet);
		Column->addWidget(Empty, 1);
	}

	QSize sizeHint() const override { return QSize(280, 300); }
	QSize minimumSizeHint() const override { return QSize(80, 60); }

	QLabel* Title;
	QWidget* SearchFrame;
	QLineEdit* Search;
	QTreeWidget* Tree;
	QLabel* Empty;
	float ValueWidth = 0.6f;

protected:
	void resizeEvent(QResizeEvent*) override
	{
		const int Room = std::max(0, Tree->viewport()->width() - ResetWidth);
		Tree->header()->resizeSection(NameColumn, qRound(Room * (1.0 - static_cast<double>(ValueWidth))));
	}
};

class FDetailsView : public FWidgetView
{
public:
	FDetailsView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FWidgetView(InWorld, InModel, new FDetailsNative)
		, Box(*static_cast<FDetailsNative*>(Native()))
	{
		Box.ValueWidth = DetailsValueWidthOf(InModel);
		Box.SearchFrame->setVisible(DetailsViewHasSearch(InModel));
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(Box.Search, &QLineEdit::textChanged, &Box,
			[Weak](const QString& Text)
			{
				if (const TSharedPtr<SWidget> Current = Weak.Pin())
				{
					DetailsModelOf(Current.ToSharedRef())->SetFilter(ToFText(Text));
				}
			});
		QObject::connect(Box.Tree, &QTreeWidget::itemChanged, &Box,
			[this](QTreeWidgetItem* Item, int Column) { TakeCheck(Item, Column); });
		QObject::connect(Box.Tree, &QTreeWidget::itemClicked, &Box,
			[](QTreeWidgetItem* Item, int Column)
			{
				FRowItem* const Row = RowOf(Item);
				if (Row && Column == ResetColumn && Row->Row->DiffersFromDefault() && !Row->Row->IsReadOnly())
				{
					Row->Row->ResetToDefault();
				}
			});
		const auto NoteExpansion = [this](QTreeWidgetItem* Item, bool bExpanded)
		{
			FRowItem* const Row = RowOf(Item);
			if (Row && !bFollowing)
			{
				Row->Row->SetExpanded(bExpanded);
			}
		};
		QObject::connect(Box.Tree, &QTreeWidget::itemExpanded, &Box,
			[NoteExpansion](QTreeWidgetItem* Item) { NoteExpansion(Item, true); });
		QObject::connect(Box.Tree, &QTreeWidget::itemCollapsed, &Box,
			[NoteExpansion](QTreeWidgetItem* Item) { NoteExpansion(Item, false); });
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const TSharedRef<SWidget> Widget = Model.AsShared();
		FDetailsModel& Details = *DetailsModelOf(Widget);
		const QString Title = ToQString(DetailsTitleOf(Widget));
		if (Box.Title->text() != Title)
		{
			Box.Title->setText(Title);
		}
		Box.Title->setVisible(!Title.isEmpty());
		bFollowing = true;
		const TArray<FDetailsCategory>& Categories = Details.GetCategories();
		if (!bBuilt || Details.GetRevision() != Revision)
		{
			bBuilt = true;
			Revision = Details.GetRevision();
			Build(Categories);
		}
		const bool bAny = Categories.Num() > 0;
		Box.Tree->setVisible(bAny);
		Box.Empty->setVisible(!bAny);
		// A value that is being edited stays as the user has it.
		if (!Box.Tree->isPersistentEditorOpen(Box.Tree->currentIndex()) && bAny)
		{
			for (int32 Index = 0; Index < Categories.Num(); ++Index)
			{
				QTreeWidgetItem& Top = *Box.Tree->topLevelItem(Index);
				Top.setHidden(!Categories[Index].bVisible);
				FollowRows(Top);
			}
		}
		bFollowing = false;
	}

private:
	void Build(const TArray<FDetailsCategory>& Categories)
	{
		const int Scrolled = Box.Tree->verticalScrollBar() ? Box.Tree->verticalScrollBar()->value() : 0;
		Box.Tree->clear();
		for (const FDetailsCategory& Category : Categories)
		{
			auto* const Top = new QTreeWidgetItem(Box.Tree, {ToQString(Category.Name)});
			QFont Font = Box.Tree->font();
			Font.setBold(true);
			Top->setFont(NameColumn, Font);
			Top->setFlags(Qt::ItemIsEnabled);
			Top->setFirstColumnSpanned(true);
			for (int Column = 0; Column < NumColumns; ++Column)
			{
				Top->setBackground(Column, Theme::Header);
			}
			for (const TSharedRef<FDetailsRow>& Row : Category.Rows)
			{
				Add(*Top, Row);
			}
			Top->setExpanded(true);
		}
		Box.Tree->verticalScrollBar()->setValue(Scrolled);
	}

	void Add(QTreeWidgetItem& Parent, const TSharedRef<FDetailsRow>& Row)
	{
		auto* const Item = new FRowItem(Row);
		Parent.addChild(Item);
		Item->setToolTip(NameColumn, ToQString(Row->GetToolTip()));
		Item->setToolTip(ResetColumn, "Reset to default");
		for (const TSharedRef<FDetailsRow>& Child : Row->GetChildren())
		{
			Add(*Item, Child);
		}
		Item->setExpanded(Row->IsExpanded());
	}

	void FollowRows(QTreeWidgetItem& Parent)
	{
		if (!Parent.isExpanded())
		{
			return;
		}
		for (int Index = 0; Index < Parent.childCount(); ++Index)
		{
			FRowItem& Item = *static_cast<FRowItem*>(Parent.child(Index));
			Item.Follow();
			FollowRows(Item);
		}
	}

	void TakeCheck(QTreeWidgetItem* Item, int Column)
	{
		FRowItem* const Row = RowOf(Item);
		if (bFollowing || !Row || Column != ValueColumn || Row->Row->GetKind() != EDetailsValue::Bool)
		{
			return;
		}
		const bool bChecked = Item->checkState(ValueColumn) == Qt::Checked;
		FText Reason;
		if (bChecked != Row->Row->IsChecked() || Row->Row->HasMultipleValues())
		{
			Row->Row->SetValue(bChecked ? TEXT("True") : TEXT("False"), Reason);
		}
	}

	FDetailsNative& Box;
	std::uint64_t Revision = 0;
	bool bBuilt = false;
	bool bFollowing = false;
};

} // namespace

std::unique_ptr<FWidgetView> MakeDetailsView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	return DetailsModelOf(Model) ? std::make_unique<FDetailsView>(World, Model) : nullptr;
}

} // namespace Host
