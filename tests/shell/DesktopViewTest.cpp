// SPDX-License-Identifier: MIT
#include <QTest>

#include "Components/PrimitiveComponent.h"
#include "Editor/Widgets/TandemViewport/SZEFTandemEditorViewport.h"
#include "Editor/ZEFTandemEditor.h"
#include "EditorViewportClient.h"

#include "DesktopFixture.h"
#include "OpenGLSwitch.h"

namespace
{

class DesktopView : public FDesktopFixture
{
protected:
	TSharedPtr<FEditorViewportClient> Client() const { return Editor()->GetViewport()->GetViewportClient(); }

	/** Aims the camera so that the middle of the view shows an object. */
	void LookAt(int ObjectType)
	{
		Client()->FocusViewportOnBox(Editor()->GetObjectComponents(ObjectType)[0]->Bounds.GetBox(), true);
		Client()->Invalidate();
		Running->RunFrame();
	}

	int NumSelected() const { return Editor()->GetSelectedObjects().Num(); }
};

TEST_F(DesktopView, ControlAndAClickTakeAnObjectIntoTheSelectionAndOutOfIt)
{
	StartPeer();
	OpenEditor();
	Update();
	LookAt(4);
	const QPoint Middle = View()->rect().center();
	const auto ControlClick = [&]
	{
		QTest::keyPress(View(), Qt::Key_Control);
		QTest::mouseClick(View(), Qt::LeftButton, Qt::ControlModifier, Middle);
		QTest::keyRelease(View(), Qt::Key_Control);
	};
	QTest::mouseClick(View(), Qt::LeftButton, Qt::NoModifier, Middle);
	ASSERT_TRUE(Until([this] { return NumSelected() == 1; }));
	ControlClick();
	EXPECT_TRUE(Until([this] { return NumSelected() == 0; }));
	ControlClick();
	EXPECT_TRUE(Until([this] { return NumSelected() == 1; }));
}

TEST_F(DesktopView, KeyFFramesTheSelection)
{
	StartPeer();
	OpenEditor();
	Update();
	Editor()->SetSelectedObjects(Editor()->GetObjectComponents(4), true);
	Client()->SetViewLocation(FVector(-3000.0, 0.0, 500.0));
	Client()->SetViewRotation(FRotator(0.0, 90.0, 0.0));
	const FBox Box = Editor()->GetObjectComponents(4)[0]->Bounds.GetBox();
	const auto Distance = [&] { return (Client()->GetViewLocation() - Box.GetCenter()).Size(); };
	ASSERT_GT(Distance(), 2500.0);
	FocusView();
	QTest::keyClick(View(), Qt::Key_F);
	EXPECT_TRUE(Until([&] { return Distance() < 1500.0; })) << Distance();
	// The middle of what was framed lies straight ahead.
	const FVector Ahead = Client()->GetViewRotation().Vector();
	EXPECT_TRUE(Until(
		[&]
		{
			const FVector There = (Box.GetCenter() - Client()->GetViewLocation()).GetSafeNormal();
			return FVector::DotProduct(Ahead, There) > 0.99;
		}));
}

TEST_F(DesktopView, WithoutOpenGLSaysSoAndEverythingElseWorks)
{
	const FWithoutOpenGL Without;
	StartPeer();
	OpenEditor();
	ASSERT_TRUE(Until(
		[this]
		{
			View()->repaint();
			return View()->accessibleDescription().contains("The preview cannot be drawn.");
		}))
		<< View()->accessibleDescription().toStdString();
	EXPECT_TRUE(View()->accessibleDescription().contains("Everything else works"));
	Update();
	EXPECT_EQ(NumObjects(4), 1);
	LookAt(4);
	QTest::mouseClick(View(), Qt::LeftButton, Qt::NoModifier, View()->rect().center());
	EXPECT_TRUE(Until([this] { return NumSelected() == 1; }));
	SavePicture("desktop-without-opengl");
}

} // namespace
