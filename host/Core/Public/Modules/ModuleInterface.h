// SPDX-License-Identifier: MIT
/** What a module is to its loader. */
#pragma once

/** Base of every module class. One object of it lives from loading to shutdown; all calls come on the game thread. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;
	/** Right after construction. */
	virtual void StartupModule() {}
	/** Right before ShutdownModule(). */
	virtual void PreUnloadCallback() {}
	/** After the module's code was replaced while running, which the host never does. */
	virtual void PostLoadCallback() {}
	/** Right before destruction. */
	virtual void ShutdownModule() {}
	virtual bool SupportsDynamicReloading() { return true; }
	/** Whether the module is shut down with the program. */
	virtual bool SupportsAutomaticShutdown() { return true; }
	virtual bool IsGameModule() const { return false; }
};
