// SPDX-License-Identifier: MIT
/** Reflects the math types of Core, which lies below the object system and cannot do it itself. */
#include "CoreMinimal.h"
#include "UObject/GeneratedCppIncludes.h"

#include <cstddef>

#pragma GCC diagnostic ignored "-Winvalid-offsetof"

#define HOST_CORE_STRUCT(Type, Name, Members)                                                                          \
	static void Describe##Name([[maybe_unused]] Host::FTypeBuilder& Builder)                                           \
	{                                                                                                                  \
		using FType = Type;                                                                                            \
		Members                                                                                                        \
	}                                                                                                                  \
	static UScriptStruct* Get##Name()                                                                                  \
	{                                                                                                                  \
		static Host::FStructRegistration Registration = {                                                              \
			#Name, "/Script/CoreUObject", Host::StructOps<Type>(), nullptr, &Describe##Name};                          \
		return Host::GetStruct(Registration);                                                                          \
	}                                                                                                                  \
	static Host::FTypeAtStart AtStart##Name(Host::TypeName<Type>(), &Get##Name);

#define HOST_MEMBER(Member)                                                                                            \
	Builder.Property<decltype(FType::Member)>(#Member, offsetof(FType, Member), CPF_Edit, {{"Category", "Value"}});

HOST_CORE_STRUCT(FVector, Vector, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z))
HOST_CORE_STRUCT(FVector3f, Vector3f, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z))
HOST_CORE_STRUCT(FVector2D, Vector2D, HOST_MEMBER(X) HOST_MEMBER(Y))
HOST_CORE_STRUCT(FVector2f, Vector2f, HOST_MEMBER(X) HOST_MEMBER(Y))
HOST_CORE_STRUCT(FVector4, Vector4, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z) HOST_MEMBER(W))
HOST_CORE_STRUCT(FVector4f, Vector4f, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z) HOST_MEMBER(W))
HOST_CORE_STRUCT(FQuat, Quat, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z) HOST_MEMBER(W))
HOST_CORE_STRUCT(FRotator, Rotator, HOST_MEMBER(Pitch) HOST_MEMBER(Yaw) HOST_MEMBER(Roll))
HOST_CORE_STRUCT(FIntPoint, IntPoint, HOST_MEMBER(X) HOST_MEMBER(Y))
HOST_CORE_STRUCT(FIntVector, IntVector, HOST_MEMBER(X) HOST_MEMBER(Y) HOST_MEMBER(Z))
HOST_CORE_STRUCT(FLinearColor, LinearColor, HOST_MEMBER(R) HOST_MEMBER(G) HOST_MEMBER(B) HOST_MEMBER(A))
HOST_CORE_STRUCT(FColor, Color, HOST_MEMBER(B) HOST_MEMBER(G) HOST_MEMBER(R) HOST_MEMBER(A))
HOST_CORE_STRUCT(FGuid, Guid, HOST_MEMBER(A) HOST_MEMBER(B) HOST_MEMBER(C) HOST_MEMBER(D))
