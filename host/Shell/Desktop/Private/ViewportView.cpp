// SPDX-License-Identifier: MIT
#include "ViewportView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "Keys.h"
#include "Pictures.h"
#include "Theme.h"
#include "ViewWorld.h"

#include "Host/Viewports.h"
#include "SEditorViewport.h"
#include "Slate/SceneViewport.h"

#include <cmath>

namespace Host
{

namespace
{

constexpr double WheelStep = 120; // eighths of a degree that count as one step

/** The native widget. The overlays of the model lie over it as its children. */
class FViewportWidget : public QWidget
{
public:
	FViewportWidget(FViewWorld& InWorld, const TSharedPtr<FSceneViewport>& InViewport)
		: World(InWorld)
		, Viewport(InViewport)
	{
		setFocusPolicy(Qt::StrongFocus);
		setMouseTracking(true);
		setAttribute(Qt::WA_OpaquePaintEvent);
		setAccessibleName("Viewport");
		setMinimumSize(64, 64);
	}

	QSize sizeHint() const override { return QSize(640, 480); }

	/** Tells the model the size in pixels of the device. */
	void FollowSize()
	{
		const TSharedPtr<FSceneViewport> Target = Viewport.Pin();
		if (!Target.IsValid())
		{
			return;
		}
		const QSize Pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
		if (Target->GetSizeXY() != FIntPoint(Pixels.width(), Pixels.height()))
		{
			ResizeViewport(*Target, FIntPoint(Pixels.width(), Pixels.height()));
		}
	}

	void FollowPicture()
	{
		const TSharedPtr<FSceneViewport> Target = Viewport.Pin();
		const std::uint64_t Now = Target.IsValid() ? World.Pictures->VersionOf(*Target) : 0;
		if (Target.IsValid() && !World.Pictures->Knows(*Target))
		{
			Target->Invalidate();
		}
		if (Now != ShownVersion)
		{
			ShownVersion = Now;
			update();
		}
	}

protected:
	void paintEvent(QPaintEvent*) override
	{
		QPainter Painter(this);
		const TSharedPtr<FSceneViewport> Target = Viewport.Pin();
		const QString Error = Target.IsValid() ? World.Pictures->ErrorOf(*Target) : QString();
		const QImage* const Image = Target.IsValid() ? &World.Pictures->ImageOf(*Target) : nullptr;
		if (!Error.isEmpty() || !Image || Image->isNull())
		{
			Painter.fillRect(rect(), Theme::Recessed);
			Painter.setPen(Error.isEmpty() ? Theme::SubduedText : Theme::Caution);
			const QString Text = Error.isEmpty() ? QString("The first picture is being drawn...")
												 : "The preview cannot be drawn.\n" + Error +
													   "\n\nEverything else works: objects arrive, can be selected in "
													   "the tree and saved.";
			Painter.drawText(rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap, Text);
			setAccessibleDescription(Text);
			return;
		}
		Painter.setRenderHint(QPainter::SmoothPixmapTransform);
		Painter.drawImage(rect(), *Image);
		if (hasFocus())
		{
			Painter.setPen(QPen(Theme::Accent, 1));
			Painter.drawRect(rect().adjusted(0, 0, -1, -1));
		}
	}

	void resizeEvent(QResizeEvent*) override { FollowSize(); }

	void mousePressEvent(QMouseEvent* Event) override { SendButton(*Event, IE_Pressed); }
	void mouseReleaseEvent(QMouseEvent* Event) override { SendButton(*Event, IE_Released); }
	void mouseDoubleClickEvent(QMouseEvent* Event) override { SendButton(*Event, IE_DoubleClick); }

	void mouseMoveEvent(QMouseEvent* Event) override
	{
		const TSharedPtr<FSceneViewport> Target = Viewport.Pin();
		if (!Target.IsValid() || Event->globalPosition() == PinnedAt)
		{
			return; // the second: the pointer was put back, nobody moved it
		}
		const QPointF From = PinnedAt.isNull() ? LastMove : PinnedAt;
		const QPointF Delta = (Event->globalPosition() - From) * devicePixelRatioF();
		LastMove = Event->globalPosition();
		SendMouseMove(
			*Target, ToPixels(Event->position()), FVector2D(Delta.x(), Delta.y()), ToModifiers(Event->modifiers()));
		FollowWishes(*Target);
		if (!PinnedAt.isNull())
		{
			QCursor::setPos(PinnedAt.toPoint());
		}
	}

	void enterEvent(QEnterEvent* Event) override { LastMove = Event->globalPosition(); }

	void wheelEvent(QWheelEvent* Event) override
	{
		if (const TSharedPtr<FSceneViewport> Target = Viewport.Pin())
		{
			SendMouseWheel(*Target, static_cast<float>(Event->angleDelta().y() / WheelStep),
				ToPixels(Event->position()), ToModifiers(Event->modifiers()));
		}
		Event->accept();
	}

	void focusInEvent(QFocusEvent* Event) override
	{
		QWidget::focusInEvent(Event);
		if (const TSharedPtr<FSceneViewport> Target = Viewport.Pin())
		{
			SetViewportFocus(*Target, true);
		}
	}

	void focusOutEvent(QFocusEvent* Event) override
	{
		QWidget::focusOutEvent(Event);
		if (const TSharedPtr<FSceneViewport> Target = Viewport.Pin())
		{
			SetViewportFocus(*Target, false);
			FollowWishes(*Target);
		}
	}

private:
	FIntPoint ToPixels(const QPointF& Position) const
	{
		const double Ratio = devicePixelRatioF();
		return FIntPoint(
			static_cast<int32>(std::floor(Position.x() * Ratio)), static_cast<int32>(std::floor(Position.y() * Ratio)));
	}

	void SendButton(QMouseEvent& Event, EInputEvent Kind)
	{
		const TSharedPtr<FSceneViewport> Target = Viewport.Pin();
		const FKey Button = ToKey(Event.button());
		if (!Target.IsValid() || Button == EKeys::Invalid)
		{
			return;
		}
		LastMove = Event.globalPosition();
		// A click may end this widget: nothing of it is touched when it does.
		const QPointer<FViewportWidget> Guard(this);
		SendMouseButton(*Target, Button, Kind, ToPixels(Event.position()), ToModifiers(Event.modifiers()));
		if (Guard)
		{
			FollowWishes(*Target);
		}
	}

	void FollowWishes(const FSceneViewport& Target)
	{
		const FViewportWishes Wishes = WishesOf(Target);
		if (Wishes.bPinsPointer && PinnedAt.isNull() && QGuiApplication::platformName() != "wayland")
		{
			PinnedAt = LastMove;
		}
		else if (!Wishes.bPinsPointer)
		{
			PinnedAt = QPointF();
		}
		Qt::CursorShape Shape = Qt::ArrowCursor;
		switch (Wishes.Cursor)
		{
			case EViewportCursor::Arrow:
				break;
			case EViewportCursor::Turn:
				Shape = Qt::CrossCursor;
				break;
			case EViewportCursor::Shift:
				Shape = Qt::SizeAllCursor;
				break;
			case EViewportCursor::Nearer:
				Shape = Qt::SizeVerCursor;
				break;
		}
		setCursor(Wishes.bPinsPointer ? Qt::BlankCursor : Shape);
	}

	FViewWorld& World;
	TWeakPtr<FSceneViewport> Viewport;
	std::uint64_t ShownVersion = 0;
	QPointF LastMove;
	QPointF PinnedAt; // where the pointer is kept; null while it is free
};

class FViewportView : public FWidgetView
{
public:
	FViewportView(FViewWorld& InWorld, const TSharedRef<SEditorViewport>& InModel)
		: FWidgetView(InWorld, InModel, new FViewportWidget(InWorld, InModel->GetSceneViewport()))
		, Overlay(InWorld.Make(OverlayOf(*InModel)))
	{
		auto* const Layout = new FModelLayout(EPanelKind::Stack);
		Native()->setLayout(Layout);
		Layout->Add(Overlay->Native(), FPlace());
		// Readable over any picture.
		Overlay->Native()->setStyleSheet(
			"QToolButton { background: rgba(30, 30, 30, 200); color: #ffffff; margin: 2px; }"
			"QToolButton:hover { background: rgba(76, 76, 76, 230); } QToolButton:focus { border-color: #0e86ff; }");
	}

protected:
	void FollowModel(SWidget&) override
	{
		FViewportWidget& Widget = *static_cast<FViewportWidget*>(Native());
		Widget.FollowSize();
		Widget.FollowPicture();
		Overlay->Follow();
	}

private:
	std::unique_ptr<FWidgetView> Overlay;
};

} // namespace

std::unique_ptr<FWidgetView> MakeViewportView(FViewWorld& World, const TSharedRef<SWidget>& Model)
{
	const TSharedPtr<SEditorViewport> Viewport = AsEditorViewport(Model);
	return Viewport.IsValid() ? std::make_unique<FViewportView>(World, Viewport.ToSharedRef()) : nullptr;
}

} // namespace Host
