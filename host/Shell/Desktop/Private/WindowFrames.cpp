// SPDX-License-Identifier: MIT
#include "WindowFrames.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>

#include "Dialogs.h"
#include "Keys.h"
#include "MenuContent.h"
#include "StatusLine.h"
#include "Text.h"
#include "Toasts.h"
#include "ViewWorld.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/DockNodes.h"
#include "Host/Menus.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/SWindow.h"

#include <algorithm>
#include <utility>

namespace Host
{

namespace
{

Qt::WindowFlags FlagsOf(const SWindow& Model, bool bModal)
{
	Qt::WindowFlags Flags =
		(bModal ? Qt::Dialog : Qt::Window) | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
	Flags.setFlag(Qt::WindowCloseButtonHint, Model.HasCloseBox());
	Flags.setFlag(Qt::WindowMinimizeButtonHint, Model.HasMinimizeBox() && !bModal);
	Flags.setFlag(Qt::WindowMaximizeButtonHint, Model.HasMaximizeBox() && !bModal);
	Flags.setFlag(Qt::WindowStaysOnTopHint, Model.IsTopmostWindow());
	return Flags;
}

/** The tab in front of the first stack that has any. */
TSharedPtr<SDockTab> FrontTab(const TSharedRef<SWidget>& Root)
{
	if (const auto* const Stack = dynamic_cast<const SDockStack*>(&Root.Get()))
	{
		return Stack->GetForegroundTab();
	}
	FChildren& Children = *Root->GetChildren();
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (const TSharedPtr<SDockTab> Found = FrontTab(Children.GetChildAt(Index)))
		{
			return Found;
		}
	}
	return nullptr;
}

} // namespace

FWindowFrame::FWindowFrame(FViewWorld& InWorld, const TSharedRef<SWindow>& InModel, QWidget* Parent, bool bModal)
	: QWidget(Parent, FlagsOf(*InModel, bModal))
	, World(InWorld)
	, WeakModel(InModel)
	, Content(InWorld.Make(InModel))
{
	auto* const Column = new QVBoxLayout(this);
	Column->setContentsMargins(0, 0, 0, 0);
	Column->setSpacing(0);
	Column->addWidget(Content->Native(), 1);
	if (bModal)
	{
		setWindowModality(Qt::ApplicationModal);
	}
	Follow();
	const FVector2D Size = InModel->GetClientSizeInScreen();
	const bool bCentered = FWindowAccess::GetAutoCenter(*InModel) != EAutoCenter::None;
	if (InModel->IsAutosized() || Size.X <= 0 || Size.Y <= 0)
	{
		adjustSize();
	}
	else
	{
		const QSize Room = QGuiApplication::primaryScreen()->availableSize();
		resize(QSize(qRound(Size.X), qRound(Size.Y)).boundedTo(Room));
		// The model takes over what the screen has room for.
		WindowWasMoved(*InModel, InModel->GetPositionInScreen(), FVector2D(width(), height()), false);
	}
	if (bCentered)
	{
		const QRect Room = Parent ? Parent->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry();
		QRect Place(QPoint(), size());
		Place.moveCenter(Room.center());
		move(Place.topLeft());
	}
	else
	{
		move(qRound(InModel->GetPositionInScreen().X), qRound(InModel->GetPositionInScreen().Y));
	}
}

FWindowFrame::~FWindowFrame() = default;

void FWindowFrame::MakeMain()
{
	Status = new FStatusLine;
	layout()->addWidget(Status);
	Toasts = new FToasts(World, this);
}

void FWindowFrame::Follow()
{
	const TSharedPtr<SWindow> Current = WeakModel.Pin();
	if (!Current.IsValid())
	{
		return;
	}
	const QString NewTitle = ToQString(Current->GetTitle());
	if (NewTitle != Title || windowTitle().isEmpty())
	{
		Title = NewTitle;
		setWindowTitle(Title.isEmpty() ? QGuiApplication::applicationDisplayName() : Title);
	}
	FollowMenuBar(Current.ToSharedRef());
	Content->Follow();
	if (Status)
	{
		Status->Follow();
		Toasts->Follow(*Current);
		Toasts->Settle(Status->height());
	}
	if (Current->IsAutosized() && isVisible())
	{
		setFixedSize(sizeHint());
	}
	const FVector2D Wanted = Current->GetClientSizeInScreen();
	if (isVisible() && !isMaximized() && !isFullScreen() && Wanted.X > 0 && Wanted.Y > 0 &&
		QSize(qRound(Wanted.X), qRound(Wanted.Y)) != size())
	{
		resize(qRound(Wanted.X), qRound(Wanted.Y));
		TellPlace(); // what the screen made of it
	}
}

bool FWindowFrame::IsMoving() const
{
	return Toasts && Toasts->IsFading();
}

void FWindowFrame::FollowMenuBar(const TSharedRef<SWindow>& Current)
{
	const TSharedPtr<SDockTab> Front = FrontTab(Current);
	const TSharedPtr<FTabManager> Manager =
		Front.IsValid() ? FGlobalTabmanager::Get()->GetTabManagerForMajorTab(Front) : nullptr;
	const TSharedPtr<SWidget> Menu =
		Manager.IsValid() && Manager->AllowsWindowMenuBar() ? Manager->GetMenuWidget() : nullptr;
	if (Menu != (MenuBar ? MenuBar->Model() : nullptr))
	{
		MenuBar.reset();
		if (Menu.IsValid())
		{
			MenuBar = World.Make(Menu.ToSharedRef());
			static_cast<QVBoxLayout*>(layout())->insertWidget(0, MenuBar->Native());
		}
	}
	if (MenuBar)
	{
		MenuBar->Follow();
	}
}

void FWindowFrame::CloseForGood()
{
	bClosing = true;
	ModalLoop.quit();
	World.Bury(this);
}

void FWindowFrame::RunModal()
{
	show();
	activateWindow();
	if (!bClosing)
	{
		ModalLoop.exec();
	}
}

void FWindowFrame::closeEvent(QCloseEvent* Event)
{
	const TSharedPtr<SWindow> Current = WeakModel.Pin();
	if (bClosing || !Current.IsValid())
	{
		Event->accept();
		return;
	}
	// The model decides, and not in the middle of a frame or before a question is answered.
	Event->ignore();
	World.AskLater(
		[Weak = WeakModel]
		{
			if (const TSharedPtr<SWindow> Asked = Weak.Pin())
			{
				CloseWindowByUser(Asked.ToSharedRef());
			}
		});
}

bool FWindowFrame::SendKey(QKeyEvent& Event, bool bDown)
{
	const FKey Key = ToKey(Event);
	if (Key == EKeys::Invalid || !FSlateApplication::IsInitialized())
	{
		return false;
	}
	const uint32 Character = Event.text().isEmpty() ? 0 : Event.text().at(0).unicode();
	const FKeyEvent KeyEvent(Key, ToModifiers(Event.modifiers()), 0, Event.isAutoRepeat(), Character,
		static_cast<uint32>(Event.nativeScanCode()));
	FSlateApplication& Application = FSlateApplication::Get();
	return bDown ? Application.ProcessKeyDownEvent(KeyEvent) : Application.ProcessKeyUpEvent(KeyEvent);
}

void FWindowFrame::keyPressEvent(QKeyEvent* Event)
{
	if (!SendKey(*Event, true))
	{
		QWidget::keyPressEvent(Event);
	}
}

void FWindowFrame::keyReleaseEvent(QKeyEvent* Event)
{
	// While a key is held the system sends releases too; the model knows repeats from presses alone.
	if (Event->isAutoRepeat() || !SendKey(*Event, false))
	{
		QWidget::keyReleaseEvent(Event);
	}
}

void FWindowFrame::TellPlace()
{
	if (const TSharedPtr<SWindow> Current = WeakModel.Pin())
	{
		WindowWasMoved(*Current, FVector2D(pos().x(), pos().y()), FVector2D(width(), height()), isMaximized());
	}
}

void FWindowFrame::resizeEvent(QResizeEvent*)
{
	if (isVisible())
	{
		TellPlace();
	}
	if (Toasts)
	{
		Toasts->Settle(Status->height());
	}
}

void FWindowFrame::moveEvent(QMoveEvent*)
{
	if (isVisible())
	{
		TellPlace();
	}
}

void FWindowFrame::changeEvent(QEvent* Event)
{
	QWidget::changeEvent(Event);
	const TSharedPtr<SWindow> Current = WeakModel.Pin();
	if (Event->type() == QEvent::ActivationChange && isActiveWindow() && !bClosing && Current.IsValid())
	{
		WindowWasActivated(Current.ToSharedRef());
	}
}

FWindowFrames::FWindowFrames(FViewWorld& InWorld, FDialogWindows& InDialogs)
	: World(InWorld)
	, Dialogs(InDialogs)
	, Former(SetWindowSystem(this))
{
}

FWindowFrames::~FWindowFrames()
{
	SetWindowSystem(Former);
	for (const auto& [Model, Frame] : Frames)
	{
		delete Frame.data();
	}
}

FWindowFrame* FWindowFrames::FrameOf(const TSharedPtr<SWindow>& Window) const
{
	const auto Found = Frames.find(Window.Get());
	return Found != Frames.end() ? Found->second.data() : nullptr;
}

FWindowFrame& FWindowFrames::Take(const TSharedRef<SWindow>& Window, bool bModal)
{
	if (FWindowFrame* const Known = FrameOf(Window))
	{
		return *Known;
	}
	QWidget* Parent = FrameOf(Window->GetParentWindow());
	if (!Parent && bModal)
	{
		Parent = QApplication::activeWindow();
	}
	auto* const Frame = new FWindowFrame(World, Window, Parent, bModal);
	if (!bModal)
	{
		Frame->MakeMain();
	}
	Frames[&Window.Get()] = Frame;
	return *Frame;
}

void FWindowFrames::Show(const TSharedRef<SWindow>& Window)
{
	FWindowFrame& Frame = Take(Window, false);
	if (Window->IsWindowMaximized())
	{
		Frame.showMaximized();
	}
	else
	{
		Frame.show();
	}
}

void FWindowFrames::Hide(const TSharedRef<SWindow>& Window)
{
	if (FWindowFrame* const Frame = FrameOf(Window))
	{
		Frame->hide();
	}
}

void FWindowFrames::RunModal(const TSharedRef<SWindow>& Window)
{
	++ModalDepth;
	Take(Window, true).RunModal();
	--ModalDepth;
}

void FWindowFrames::Destroy(const TSharedRef<SWindow>& Window)
{
	const auto Found = Frames.find(&Window.Get());
	if (Found == Frames.end())
	{
		return;
	}
	const QPointer<FWindowFrame> Frame = Found->second;
	Frames.erase(Found);
	if (Frame)
	{
		Frame->CloseForGood();
	}
}

void FWindowFrames::BringToFront(const TSharedRef<SWindow>& Window)
{
	if (FWindowFrame* const Frame = FrameOf(Window))
	{
		Frame->setWindowState(Frame->windowState() & ~Qt::WindowMinimized);
		Frame->raise();
		Frame->activateWindow();
	}
}

void FWindowFrames::OpenMenu(const TSharedRef<IMenu>& Menu, const TOptional<FVector2D>& Position)
{
	const TSharedPtr<SWidget> Content = Menu->GetContent();
	if (!Content.IsValid())
	{
		return;
	}
	auto* const Native = new QMenu(FrameOf(Menu->GetParentWindow()));
	Native->setToolTipsVisible(true);
	FMenuContent::Of(World, *Native).Fill(Content.ToSharedRef());
	Menus[&Menu.Get()] = Native;
	const TWeakPtr<IMenu> Weak = Menu;
	QObject::connect(Native, &QMenu::aboutToHide, Native,
		[Native, Weak]
		{
			// After the entry that was chosen has run: it may look at the menu that it stands in.
			QMetaObject::invokeMethod(
				Native,
				[Native, Weak]
				{
					if (const TSharedPtr<IMenu> Open = Weak.Pin())
					{
						Open->Dismiss();
					}
					Native->deleteLater();
				},
				Qt::QueuedConnection);
		});
	QPoint At = QCursor::pos();
	if (Position.IsSet())
	{
		At = QPoint(qRound(Position.GetValue().X), qRound(Position.GetValue().Y));
	}
	else if (const TSharedPtr<SWidget> Parent = GetMenuParent(*Menu))
	{
		if (const FWidgetView* const View = World.ViewOf(*Parent); View && View->Native())
		{
			At = View->Native()->mapToGlobal(QPoint(0, View->Native()->height()));
		}
	}
	Native->popup(At);
}

void FWindowFrames::CloseMenu(const TSharedRef<IMenu>& Menu)
{
	const auto Found = Menus.find(&Menu.Get());
	if (Found == Menus.end())
	{
		return;
	}
	const QPointer<QMenu> Native = Found->second;
	Menus.erase(Found);
	if (Native)
	{
		Native->hide();
	}
}

void FWindowFrames::Follow()
{
	// A frame may open or destroy another one.
	const std::map<const SWindow*, QPointer<FWindowFrame>> Now = Frames;
	for (const auto& [Model, Frame] : Now)
	{
		if (Frame && Frame->isVisible())
		{
			Frame->Follow();
		}
	}
	for (FMenuContent* const Content : std::vector<FMenuContent*>(World.OpenContents))
	{
		Content->Follow();
	}
}

bool FWindowFrames::IsMoving() const
{
	return std::any_of(Frames.begin(), Frames.end(),
		[](const auto& Item) { return Item.second && Item.second->isVisible() && Item.second->IsMoving(); });
}

} // namespace Host
