// SPDX-License-Identifier: MIT
#include "InputViews.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include "Text.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Host/WidgetDriver.h"
#include "Host/WidgetTree.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SSearchBox.h"

namespace Host
{

namespace
{

/** A button as large as what stands in it. */
class FContentButton : public QPushButton
{
public:
	explicit FContentButton(bool bInArrow)
		: bArrow(bInArrow)
	{
		setFocusPolicy(Qt::StrongFocus);
		setAutoDefault(false);
		setStyleSheet("QPushButton { padding: 0; min-width: 0; }");
	}

	QSize sizeHint() const override
	{
		const QSize Inside = layout() ? layout()->totalSizeHint() : QSize(16, 16);
		return Inside + QSize(bArrow ? 18 : 2, 2);
	}
	QSize minimumSizeHint() const override { return sizeHint(); }

protected:
	void paintEvent(QPaintEvent* Event) override
	{
		QPushButton::paintEvent(Event);
		if (bArrow)
		{
			QPainter Painter(this);
			Painter.setPen(isEnabled() ? Theme::Text : Theme::DisabledText);
			Painter.drawText(QRect(width() - 18, 0, 16, height()), Qt::AlignCenter, QString(QChar(0x25be)));
		}
	}

private:
	const bool bArrow;
};

/** A button whose content is that of the model; a press goes to the model's own. */
class FButtonView : public FPanelView
{
public:
	FButtonView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel, bool bArrow)
		: FPanelView(InWorld, InModel, EPanelKind::Stack, new FContentButton(bArrow))
	{
		Native()->setFocusPolicy(InModel->SupportsKeyboardFocus() ? Qt::StrongFocus : Qt::NoFocus);
		if (bArrow)
		{
			Native()->layout()->setContentsMargins(0, 0, 16, 0);
		}
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(static_cast<QPushButton*>(Native()), &QPushButton::clicked, Native(),
			[Weak]
			{
				if (const TSharedPtr<SWidget> Button = Weak.Pin())
				{
					Press(Button.ToSharedRef());
				}
			});
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		FPanelView::FollowModel(Model);
		for (QWidget* const Child : Native()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
		{
			Child->setAttribute(Qt::WA_TransparentForMouseEvents); // a click is the button's
		}
		const QString Words = ToQString(TextOf(Model.AsShared()));
		const QString Name = Words.isEmpty() ? ToQString(Model.GetToolTipText()) : Words;
		if (Native()->accessibleName() != Name)
		{
			Native()->setAccessibleName(Name);
		}
	}
};

class FLineEdit : public QLineEdit
{
public:
	bool bSelectAll = false;

protected:
	void focusInEvent(QFocusEvent* Event) override
	{
		QLineEdit::focusInEvent(Event);
		if (bSelectAll)
		{
			// After the click that brought the focus, which would place the cursor.
			QTimer::singleShot(0, this, [this] { selectAll(); });
		}
	}

	void keyPressEvent(QKeyEvent* Event) override
	{
		const int Key = Event->key();
		if (Key == Qt::Key_Return || Key == Qt::Key_Enter || Key == Qt::Key_Escape)
		{
			Event->ignore(); // the model hands its text over, or drops it
			return;
		}
		QLineEdit::keyPressEvent(Event);
	}
};

class FTextBoxView : public FWidgetView
{
public:
	FTextBoxView(FViewWorld& InWorld, const TSharedRef<SWidget>& InModel)
		: FWidgetView(InWorld, InModel, new FLineEdit)
	{
		FLineEdit& Line = *static_cast<FLineEdit*>(Native());
		Line.setMinimumWidth(60);
		if (dynamic_cast<const SSearchBox*>(&InModel.Get()))
		{
			Line.setClearButtonEnabled(true);
			Line.bSelectAll = true;
		}
		const TWeakPtr<SWidget> Weak = InModel;
		QObject::connect(&Line, &QLineEdit::textEdited, &Line,
			[Weak](const QString& Text)
			{
				if (const TSharedPtr<SWidget> Box = Weak.Pin())
				{
					EditTextByUser(static_cast<SEditableTextBox&>(*Box), ToFText(Text));
				}
			});
		QObject::connect(&Line, &QLineEdit::textChanged, &Line,
			[Weak, &Line](const QString& Text)
			{
				// The clear button edits without telling of an edit.
				const TSharedPtr<SWidget> Box = Text.isEmpty() && Line.hasFocus() ? Weak.Pin() : nullptr;
				if (Box.IsValid() && !static_cast<SEditableTextBox&>(*Box).GetText().IsEmpty())
				{
					EditTextByUser(static_cast<SEditableTextBox&>(*Box), FText::GetEmpty());
				}
			});
	}

protected:
	void FollowModel(SWidget& Model) override
	{
		const SEditableTextBox& Box = static_cast<const SEditableTextBox&>(Model);
		FLineEdit& Line = *static_cast<FLineEdit*>(Native());
		const QString Text = ToQString(Box.GetText());
		if (Line.text() != Text)
		{
			Line.setText(Text);
		}
		const QString Hint = ToQString(Box.GetHintText());
		if (Line.placeholderText() != Hint)
		{
			Line.setPlaceholderText(Hint);
			Line.setAccessibleName(Hint);
		}
		if (Line.isReadOnly() != Box.IsReadOnly())
		{
			Line.setReadOnly(Box.IsReadOnly());
		}
	}
};

} // namespace

std::unique_ptr<FWidgetView> MakeInputView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	if (dynamic_cast<const SButton*>(&Model.Get()))
	{
		return std::make_unique<FButtonView>(World, Model, false);
	}
	if (const auto* const Combo = dynamic_cast<const SComboButton*>(&Model.Get()))
	{
		return std::make_unique<FButtonView>(World, Model, Combo->HasDownArrow());
	}
	if (dynamic_cast<const SEditableTextBox*>(&Model.Get()))
	{
		return std::make_unique<FTextBoxView>(World, Model);
	}
	return nullptr;
}

} // namespace Host
