// SPDX-License-Identifier: MIT
/** Flags of objects, classes and properties, and the macros that mark reflected declarations. */
#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"

class FObjectInitializer;
class FReferenceCollector;
class UClass;
class UEnum;
class UObject;
class UPackage;
class UScriptStruct;

namespace Host
{
class FTypeBuilder;
class FEnumBuilder;
struct FObjectAccess;
} // namespace Host

/** What an object is, and how long it lives. */
enum EObjectFlags
{
	RF_NoFlags = 0,
	/** Visible outside of its package. */
	RF_Public = 0x00000001,
	/** An asset: kept by a collection that is told so, even when nothing refers to it. */
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	/** The object that holds the default values of its class. */
	RF_ClassDefaultObject = 0x00000010,
	/** A template for other objects; class defaults are. */
	RF_ArchetypeObject = 0x00000020,
	/** Never saved. */
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_NeedInitialization = 0x00000200,
	RF_NeedLoad = 0x00000400,
	RF_NeedPostLoad = 0x00001000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	/** Made by CreateDefaultSubobject in its outer's constructor. */
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_TextExportTransient = 0x00100000,
	RF_LoadCompleted = 0x00200000,
	RF_DuplicateTransient = 0x00800000,
	RF_AllFlags = 0x0fffffff
};
constexpr EObjectFlags operator|(EObjectFlags A, EObjectFlags B)
{
	return static_cast<EObjectFlags>(static_cast<uint32>(A) | static_cast<uint32>(B));
}
constexpr EObjectFlags operator&(EObjectFlags A, EObjectFlags B)
{
	return static_cast<EObjectFlags>(static_cast<uint32>(A) & static_cast<uint32>(B));
}
constexpr EObjectFlags operator~(EObjectFlags A)
{
	return static_cast<EObjectFlags>(~static_cast<uint32>(A) & static_cast<uint32>(RF_AllFlags));
}
inline EObjectFlags& operator|=(EObjectFlags& A, EObjectFlags B)
{
	return A = A | B;
}
inline EObjectFlags& operator&=(EObjectFlags& A, EObjectFlags B)
{
	return A = A & B;
}

/** Flags that a default subobject takes over from its outer. */
#define RF_PropagateToSubObjects (RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient)

/** States that the object system keeps beside the object. */
enum class EInternalObjectFlags : int32
{
	None = 0,
	/** Marked as garbage: references to it are cleared by the next collection. */
	Garbage = 1 << 21,
	/** Compiled into the program, such as a class; never collected. */
	Native = 1 << 25,
	/** Found unreachable by the collection that is running. */
	Unreachable = 1 << 28,
	/** Added to the root set. */
	RootSet = 1 << 30
};
ENUM_CLASS_FLAGS(EInternalObjectFlags)

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	/** Has no instances of its own. */
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	/** Instances are never saved. */
	CLASS_Transient = 0x00000008u,
	CLASS_Native = 0x00000080u,
	CLASS_Interface = 0x00004000u,
	/** References to the class are instanced: each object owns the one it refers to. */
	CLASS_DefaultToInstanced = 0x00200000u,
	/** Can be made from a property editor. */
	CLASS_EditInlineNew = 0x00001000u,
	CLASS_CollapseCategories = 0x00002000u,
	CLASS_Const = 0x00010000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_HideDropDown = 0x04000000u,
	CLASS_Intrinsic = 0x10000000u,
	/** Flags that a class takes over from its super class. */
	CLASS_Inherit = CLASS_Transient | CLASS_DefaultConfig | CLASS_Config | CLASS_Interface | CLASS_DefaultToInstanced |
					CLASS_EditInlineNew | CLASS_Const | CLASS_Deprecated | CLASS_HideDropDown | CLASS_CollapseCategories
};
constexpr EClassFlags operator|(EClassFlags A, EClassFlags B)
{
	return static_cast<EClassFlags>(static_cast<uint32>(A) | static_cast<uint32>(B));
}
constexpr EClassFlags operator&(EClassFlags A, EClassFlags B)
{
	return static_cast<EClassFlags>(static_cast<uint32>(A) & static_cast<uint32>(B));
}
inline EClassFlags& operator|=(EClassFlags& A, EClassFlags B)
{
	return A = A | B;
}

enum EPropertyFlags : uint64
{
	CPF_None = 0,
	/** Shown by property editors. */
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	/** Exported with its owner instead of by its path. */
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	/** Neither saved nor copied by DuplicateObject. */
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	/** Shown but not changed by property editors. */
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	/** Refers to an object that the owner keeps for itself. */
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_NoClear = 0x0000000002000000,
	CPF_SkipSerialization = 0x0000000000800000,
	CPF_TextExportTransient = 0x0000010000000000,
	CPF_NonPIEDuplicateTransient = 0x0000020000000000,
	CPF_SimpleDisplay = 0x0000004000000000,
	CPF_AdvancedDisplay = 0x0000008000000000
};
ENUM_CLASS_FLAGS(EPropertyFlags)

/** Ways to write and read property values as text. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	/** Texts are quoted, so that they can stand in a list. */
	PPF_Delimited = 0x00000002,
	PPF_PropertyWindow = 0x00000020
};

enum ELoadFlags
{
	LOAD_None = 0x00000000,
	LOAD_NoWarn = 0x00000002,
	LOAD_Quiet = 0x00002000
};

/** How UObject::Rename goes about it. */
typedef uint32 ERenameFlags;
#define REN_None (0x0000)
/** Only answer whether the name is free. */
#define REN_Test (0x0002)
#define REN_DoNotDirty (0x0004)
#define REN_DontCreateRedirectors (0x0010)
#define REN_NonTransactional (0x0020)

/**
 * Marks of reflected declarations. They mean something to the header tool only; GENERATED_BODY expands to what the
 * tool wrote for this line of this file.
 */
#define UCLASS(...)
#define USTRUCT(...)
#define UENUM(...)
#define UMETA(...)
#define UPROPERTY(...)
#define UFUNCTION(...)
#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_UCLASS_BODY)
