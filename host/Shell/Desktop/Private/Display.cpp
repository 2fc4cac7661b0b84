// SPDX-License-Identifier: MIT
#include "Host/Desktop.h"

#include <QDir>
#include <QLibraryInfo>

#include <dlfcn.h>

namespace Host
{

namespace
{

constexpr const char* Advice = "; start it with --headless to work without one";

bool IsSet(const char* Variable)
{
	return !qEnvironmentVariableIsEmpty(Variable);
}

bool HasPlatform(const char* Pattern)
{
	const QDir Folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
	return !Folder.entryList({QLatin1String(Pattern)}, QDir::Files).isEmpty();
}

/**
 * Whether the X server that $DISPLAY names lets us in. Asked of the library that Qt asks, which is there with Qt. The
 * connection stays: a server whose last client goes starts afresh, and would turn Qt away meanwhile.
 */
bool CanReachX()
{
	void* const Library = dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL);
	if (!Library)
	{
		return false;
	}
	using FConnect = void* (*)(const char*, int*);
	using FHasError = int (*)(void*);
	const auto Connect = reinterpret_cast<FConnect>(dlsym(Library, "xcb_connect"));
	const auto HasError = reinterpret_cast<FHasError>(dlsym(Library, "xcb_connection_has_error"));
	static void* Connection = nullptr;
	if (!Connection && Connect)
	{
		Connection = Connect(nullptr, nullptr);
	}
	return Connection && HasError && HasError(Connection) == 0;
}

} // namespace

std::string WhyNoDisplay()
{
	if (IsSet("QT_QPA_PLATFORM"))
	{
		const QByteArray Platform = qgetenv("QT_QPA_PLATFORM");
		if (!Platform.startsWith("xcb") && !Platform.startsWith("wayland"))
		{
			return {}; // one that needs no display, by the user's own choice
		}
	}
	if (IsSet("WAYLAND_DISPLAY") && HasPlatform("libqwayland*"))
	{
		return {};
	}
	if (IsSet("DISPLAY"))
	{
		return CanReachX()
				   ? std::string()
				   : "the display \"" + qEnvironmentVariable("DISPLAY").toStdString() + "\" cannot be opened" + Advice;
	}
	return IsSet("WAYLAND_DISPLAY")
			   ? std::string("Qt's part for Wayland is not installed (package qt6-wayland)") + Advice
			   : std::string("there is no display") + Advice;
}

} // namespace Host
