// SPDX-License-Identifier: MIT
/** Small macros and tag types used by every module. */
#pragma once

#include "HAL/Platform.h"

#define PREPROCESSOR_TO_STRING_INNER(Text) #Text
#define PREPROCESSOR_TO_STRING(Text) PREPROCESSOR_TO_STRING_INNER(Text)
#define PREPROCESSOR_JOIN_INNER(A, B) A##B
#define PREPROCESSOR_JOIN(A, B) PREPROCESSOR_JOIN_INNER(A, B)
#define PREPROCESSOR_NOTHING

/** Keeps the commas of a template argument list out of a macro's argument list. */
#define UE_REMOVE_OPTIONAL_PARENS(...) __VA_ARGS__

#define UE_NONCOPYABLE(TypeName)                                                                                       \
	TypeName(TypeName&&) = delete;                                                                                     \
	TypeName(const TypeName&) = delete;                                                                                \
	TypeName& operator=(const TypeName&) = delete;                                                                     \
	TypeName& operator=(TypeName&&) = delete;

/** Result of a search that found nothing. */
enum
{
	INDEX_NONE = -1
};

/** Asks a math type's constructor for defined contents. */
enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

/** Asks a math type's constructor to leave its contents undefined. */
enum ENoInit
{
	NoInit
};

/** Selects a constructor that builds a held value from the arguments that follow. */
enum EInPlace
{
	InPlace
};

/** Identity of an input device; negative when none. */
struct FInputDeviceId
{
	static FInputDeviceId CreateFromInternalId(int32 InInternalId) { return FInputDeviceId{InInternalId}; }
	int32 GetId() const { return InternalId; }
	bool IsValid() const { return InternalId >= 0; }
	bool operator==(const FInputDeviceId& Other) const = default;

	int32 InternalId = INDEX_NONE;
};

/** Identity of a user of the platform; negative when none. */
struct FPlatformUserId
{
	static FPlatformUserId CreateFromInternalId(int32 InInternalId) { return FPlatformUserId{InInternalId}; }
	int32 GetInternalId() const { return InternalId; }
	bool IsValid() const { return InternalId >= 0; }
	bool operator==(const FPlatformUserId& Other) const = default;

	int32 InternalId = INDEX_NONE;
};

inline constexpr FInputDeviceId INPUTDEVICEID_NONE{};
inline constexpr FPlatformUserId PLATFORMUSERID_NONE{};
