// SPDX-License-Identifier: MIT
/** Loading and shutdown of modules. */

#include "Modules/ModuleManager.h"
#include "CoreGlobals.h"
#include "Host/Modules.h"
#include "Logging/LogMacros.h"

namespace
{
/** Head of the list of linked modules; constant-initialised, so that registrants of any file may run first. */
constinit FStaticallyLinkedModuleRegistrantBase* FirstRegistrant = nullptr;
} // namespace

FStaticallyLinkedModuleRegistrantBase::FStaticallyLinkedModuleRegistrantBase(
	const TCHAR* InModuleName, FFactory InFactory)
	: ModuleName(InModuleName)
	, Factory(InFactory)
	, Next(FirstRegistrant)
{
	FirstRegistrant = this;
}

FStaticallyLinkedModuleRegistrantBase::~FStaticallyLinkedModuleRegistrantBase()
{
	for (FStaticallyLinkedModuleRegistrantBase** Link = &FirstRegistrant; *Link != nullptr; Link = &(*Link)->Next)
	{
		if (*Link == this)
		{
			*Link = Next;
			return;
		}
	}
}

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: a module that is left at the program's end must not be shut down after what it uses.
	static FModuleManager* const Manager = new FModuleManager();
	return *Manager;
}

const FStaticallyLinkedModuleRegistrantBase* FModuleManager::FindRegistrant(const FName InModuleName)
{
	for (const FStaticallyLinkedModuleRegistrantBase* Registrant = FirstRegistrant; Registrant != nullptr;
		 Registrant = Registrant->Next)
	{
		if (FName(Registrant->ModuleName) == InModuleName)
		{
			return Registrant;
		}
	}
	return nullptr;
}

int32 FModuleManager::IndexOf(const FName InModuleName) const
{
	for (int32 Index = 0; Index < Modules.Num(); ++Index)
	{
		if (Modules[Index].Name == InModuleName)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	return IndexOf(InModuleName) != INDEX_NONE;
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return FindRegistrant(FName(ModuleName)) != nullptr;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const int32 Index = IndexOf(InModuleName);
	return Index != INDEX_NONE ? Modules[Index].Module.Get() : nullptr;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags)
{
	if (IModuleInterface* const Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	const FStaticallyLinkedModuleRegistrantBase* const Registrant = FindRegistrant(InModuleName);
	if (Registrant == nullptr)
	{
		if (InLoadModuleFlags == ELoadModuleFlags::LogFailures)
		{
			UE_LOG(LogTemp, Warning, TEXT("Module '%s' could not be loaded: no such module is linked in"),
				*InModuleName.ToString());
		}
		return nullptr;
	}
	IModuleInterface* const Module = Registrant->Factory();
	FModuleInfo Info;
	Info.Name = InModuleName;
	Info.Module = TUniquePtr<IModuleInterface>(Module);
	Info.StartOrder = NextStartOrder++;
	Modules.Add(MoveTemp(Info));
	Module->StartupModule();
	// The start may have loaded other modules, which must be shut down after this one.
	const int32 Index = IndexOf(InModuleName);
	if (Index == INDEX_NONE)
	{
		return nullptr;
	}
	Modules[Index].StartOrder = NextStartOrder++;
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* const Module = LoadModule(InModuleName, ELoadModuleFlags::LogFailures);
	checkf(Module != nullptr, TEXT("Module '%s' could not be loaded"), *InModuleName.ToString());
	return *Module;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	const int32 Index = IndexOf(InModuleName);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	IModuleInterface* const Module = Modules[Index].Module.Get();
	if (bIsShutdown && !Module->SupportsAutomaticShutdown())
	{
		return false;
	}
	// Still loaded while it says goodbye, so that what it calls finds it.
	Module->PreUnloadCallback();
	Module->ShutdownModule();
	Modules.RemoveAt(IndexOf(InModuleName));
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	for (;;)
	{
		int32 Last = INDEX_NONE;
		for (int32 Index = 0; Index < Modules.Num(); ++Index)
		{
			if (Modules[Index].Module->SupportsAutomaticShutdown() &&
				(Last == INDEX_NONE || Modules[Index].StartOrder > Modules[Last].StartOrder))
			{
				Last = Index;
			}
		}
		if (Last == INDEX_NONE)
		{
			return;
		}
		UnloadModule(Modules[Last].Name, true);
	}
}

namespace Host
{

void ShutdownModules()
{
	FModuleManager::Get().UnloadModulesAtShutdown();
}

} // namespace Host
