// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QDialog>
#include <QDir>
#include <QTest>

#include "Editor/ZEFTandemEditor.h"
#include "Editor/ZEFTandemEditorModule.h"
#include "Modules/ModuleManager.h"

#include "DesktopFixture.h"

namespace
{
constexpr int PatienceMilliseconds = 120000;
}

void FDesktopFixture::SetUp()
{
	OpenDesktop();
}

void FDesktopFixture::TearDown()
{
	CloseDesktop();
	Peer.reset();
}

void FDesktopFixture::StartPeer()
{
	Peer = std::make_unique<FProgram>(
		std::vector<std::string>{ZEF_PEER_PROGRAM, "serve", "--endpoint", Endpoint(), "--ready-file", Folder / "ready"},
		Folder / "peer.log");
	ASSERT_TRUE(Until([this] { return std::filesystem::exists(Folder / "ready") || !Peer->IsRunning(); }));
	ASSERT_TRUE(Peer->IsRunning()) << Peer->Output();
}

void FDesktopFixture::OpenDesktop()
{
	Host::FDesktopOptions Options;
	Options.Project = Folder / "Project";
	Options.Plugin = ZEF_SOURCE_DIR;
	Options.Endpoint = Endpoint();
	std::string Error;
	Running = Host::FDesktop::Open(Options, Error);
	ASSERT_NE(Running, nullptr) << Error;
	ASSERT_TRUE(QTest::qWaitForWindowExposed(Window()));
}

void FDesktopFixture::CloseDesktop()
{
	Running.reset();
}

void FDesktopFixture::OpenEditor()
{
	if (!Editor().IsValid())
	{
		Click("ZEF/KR Tandem Editor");
	}
	ASSERT_TRUE(Until([this] { return Editor().IsValid() && View() != nullptr; }));
	// A request before the link is up would be one of nobody.
	ASSERT_TRUE(Until(
		[this]
		{
			const QLabel* const State = Window()->findChild<QLabel*>("LinkState");
			return !Peer || State->text().contains("connected to");
		}));
}

void FDesktopFixture::Update()
{
	WithNextDialog([](QDialog& Dialog) { ButtonOf(Dialog, "Ok")->click(); });
	Click("Update");
	ASSERT_TRUE(
		Until([this] { return NumObjects(2) > 0 && NumObjects(4) > 0 && NumObjects(8) > 0 && NumObjects(16) > 0; }))
		<< Peer->Output();
}

bool FDesktopFixture::Until(const std::function<bool()>& Done)
{
	return QTest::qWaitFor(Done, PatienceMilliseconds);
}

bool FDesktopFixture::UntilStill()
{
	Running->RunFrame(); // what was done before is on its way to the picture then
	return Until([this] { return Running->IsStill(); });
}

QWidget* FDesktopFixture::Named(const QString& Name) const
{
	for (QWidget* const Widget : QApplication::allWidgets())
	{
		if (Widget->isVisible() && Widget->accessibleName() == Name)
		{
			return Widget;
		}
	}
	return nullptr;
}

QAbstractButton* FDesktopFixture::ButtonOf(QWidget& Parent, const QString& Text)
{
	for (QAbstractButton* const Button : Parent.findChildren<QAbstractButton*>())
	{
		if (Button->isVisible() && (Button->text() == Text || Button->accessibleName() == Text))
		{
			return Button;
		}
	}
	return nullptr;
}

void FDesktopFixture::Click(const QString& Name)
{
	QAbstractButton* Button = nullptr;
	for (QWidget* const Top : QApplication::topLevelWidgets())
	{
		Button = Button || !Top->isVisible() ? Button : ButtonOf(*Top, Name);
	}
	ASSERT_NE(Button, nullptr) << Name.toStdString();
	ASSERT_TRUE(Button->isEnabled()) << Name.toStdString();
	QTest::mouseClick(Button, Qt::LeftButton);
}

void FDesktopFixture::FocusView()
{
	View()->window()->activateWindow();
	View()->setFocus();
	ASSERT_TRUE(Until([this] { return View()->hasFocus(); }));
}

void FDesktopFixture::WithNextDialog(std::function<void(QDialog&)> Act)
{
	QTimer::singleShot(0, qApp,
		[this, Act = std::move(Act)]
		{
			auto* const Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
			if (Dialog)
			{
				Act(*Dialog);
			}
			else
			{
				WithNextDialog(Act);
			}
		});
}

void FDesktopFixture::SavePicture(const QString& Name)
{
	const QString FolderName = QString(ZEF_BINARY_DIR) + "/pictures";
	ASSERT_TRUE(QDir().mkpath(FolderName));
	QWidget* const Shown = View() ? View()->window() : Window();
	EXPECT_TRUE(Shown->grab().save(FolderName + "/" + Name + ".png"));
}

TSharedPtr<FZEFTandemEditor> FDesktopFixture::Editor() const
{
	FZEFTandemEditorModule& Module = FModuleManager::LoadModuleChecked<FZEFTandemEditorModule>(TEXT("ZEFTandemEditor"));
	return StaticCastSharedPtr<FZEFTandemEditor>(Module.GetEditor());
}

int FDesktopFixture::NumObjects(int ObjectType) const
{
	const TSharedPtr<FZEFTandemEditor> Open = Editor();
	return Open.IsValid() ? Open->GetObjectComponents(ObjectType).Num() : 0;
}
