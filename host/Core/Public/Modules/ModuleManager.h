// SPDX-License-Identifier: MIT
/** Loading of modules by name. */
#pragma once

#include "Containers/Array.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

/** Options of LoadModule(). */
enum class ELoadModuleFlags
{
	None = 0,
	/** Failures are logged even where the caller handles them. */
	LogFailures = 1
};

/** A module that needs no code of its own at start and end. */
class FDefaultModuleImpl : public IModuleInterface
{
};

/** One module of the program, known by name before anything runs. IMPLEMENT_MODULE makes it. */
class CORE_API FStaticallyLinkedModuleRegistrantBase
{
public:
	using FFactory = IModuleInterface* (*)();

	/** ModuleName must live as long as the program. */
	FStaticallyLinkedModuleRegistrantBase(const TCHAR* InModuleName, FFactory InFactory);
	~FStaticallyLinkedModuleRegistrantBase();
	UE_NONCOPYABLE(FStaticallyLinkedModuleRegistrantBase);

private:
	friend class FModuleManager;
	const TCHAR* ModuleName;
	FFactory Factory;
	FStaticallyLinkedModuleRegistrantBase* Next;
};

/** The same for a module class that can be made without arguments. */
template <class ModuleClass>
class FStaticallyLinkedModuleRegistrant : public FStaticallyLinkedModuleRegistrantBase
{
public:
	explicit FStaticallyLinkedModuleRegistrant(const TCHAR* InModuleName)
		: FStaticallyLinkedModuleRegistrantBase(InModuleName, []() -> IModuleInterface* { return new ModuleClass(); })
	{
	}
};

/** Makes a module known under a name; stands once in one source file of the module. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)                                                                  \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(TEXT(#ModuleName));

/**
 * The modules that are loaded. A module is made and started when it is first asked for, and shut down with the program,
 * the last one started first; names ignore case. Game thread only.
 */
class CORE_API FModuleManager
{
public:
	static FModuleManager& Get();
	UE_NONCOPYABLE(FModuleManager);

	/** Whether the module was made and not shut down. It is already while its StartupModule() runs. */
	bool IsModuleLoaded(const FName InModuleName) const;
	/** Whether a module of this name could be loaded. */
	bool ModuleExists(const TCHAR* ModuleName) const;

	/** The module, loaded if need be; null when there is none of this name. Owned by the manager. */
	IModuleInterface* LoadModule(const FName InModuleName, ELoadModuleFlags InLoadModuleFlags = ELoadModuleFlags::None);
	/** The same; a missing module is a fault. */
	IModuleInterface& LoadModuleChecked(const FName InModuleName);
	/** The module when it is loaded, else null. */
	IModuleInterface* GetModule(const FName InModuleName);
	/** Shuts a module down and destroys it. @return whether it was loaded */
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);

	// The class is taken on trust.

	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<TModuleInterface&>(Get().LoadModuleChecked(InModuleName));
	}
	template <typename TModuleInterface>
	static TModuleInterface* LoadModulePtr(const FName InModuleName)
	{
		return static_cast<TModuleInterface*>(Get().LoadModule(InModuleName));
	}
	template <typename TModuleInterface>
	static TModuleInterface& GetModuleChecked(const FName ModuleName)
	{
		IModuleInterface* const Module = Get().GetModule(ModuleName);
		checkf(
			Module != nullptr, TEXT("Tried to get module interface for unloaded module: '%s'"), *ModuleName.ToString());
		return static_cast<TModuleInterface&>(*Module);
	}
	template <typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(Get().GetModule(ModuleName));
	}

	/** Shuts all modules down that allow it, the last one started first. */
	void UnloadModulesAtShutdown();

private:
	/** A module in memory. */
	struct FModuleInfo
	{
		FName Name;
		TUniquePtr<IModuleInterface> Module;
		/** Rises with the end of each start; a module that others loaded while starting stands below them. */
		int32 StartOrder = 0;
	};

	FModuleManager() = default;
	static const FStaticallyLinkedModuleRegistrantBase* FindRegistrant(const FName InModuleName);
	int32 IndexOf(const FName InModuleName) const;

	TArray<FModuleInfo> Modules;
	int32 NextStartOrder = 1;
};
