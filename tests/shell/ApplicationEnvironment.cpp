// SPDX-License-Identifier: MIT
/** The application object that all tests of this program share. Without a display it draws into memory. */
#include "Theme.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <memory>

namespace
{

class FApplicationEnvironment : public ::testing::Environment
{
public:
	void SetUp() override
	{
		if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
		{
			qputenv("QT_QPA_PLATFORM", "offscreen");
		}
		Application = std::make_unique<QApplication>(ArgumentCount, Arguments);
		QApplication::setQuitOnLastWindowClosed(false);
		QApplication::setApplicationDisplayName("ZEF/KR Tandem");
		Host::ApplyTheme(*Application);
	}
	void TearDown() override { Application.reset(); }

private:
	char Name[12] = "shell_tests";
	char* Arguments[2] = {Name, nullptr};
	int ArgumentCount = 1;
	std::unique_ptr<QApplication> Application;
};

const ::testing::Environment* const Environment =
	::testing::AddGlobalTestEnvironment(new FApplicationEnvironment); // owned by the test library

} // namespace
