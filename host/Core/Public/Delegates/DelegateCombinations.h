// SPDX-License-Identifier: MIT
/** Macros that declare delegate types. */
#pragma once

#include "Delegates/TDelegate.h"
#include "Delegates/TMulticastDelegate.h"

#define FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, ...) using DelegateName = TDelegate<ReturnType(__VA_ARGS__)>;
#define FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, ReturnType, ...)                                                 \
	using DelegateName = TMulticastDelegate<ReturnType(__VA_ARGS__)>;

/** A multicast delegate that only its owner may broadcast or clear. */
#define FUNC_DECLARE_EVENT(OwningType, EventName, ...)                                                                 \
	class EventName : public TMulticastDelegate<void(__VA_ARGS__)>                                                     \
	{                                                                                                                  \
		friend class OwningType;                                                                                       \
		using Super = TMulticastDelegate<void(__VA_ARGS__)>;                                                           \
		using Super::Broadcast;                                                                                        \
		using Super::Clear;                                                                                            \
	};

#define DECLARE_DELEGATE(DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, void)
#define DECLARE_DELEGATE_RetVal(ReturnType, DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, ReturnType)
#define DECLARE_MULTICAST_DELEGATE(DelegateName) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void)
#define DECLARE_EVENT(OwningType, EventName) FUNC_DECLARE_EVENT(OwningType, EventName)

#define DECLARE_DELEGATE_OneParam(DelegateName, Param1Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_DELEGATE_RetVal_OneParam(ReturnType, DelegateName, Param1Type)                                         \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type)
#define DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type)                                                  \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_EVENT_OneParam(OwningType, EventName, Param1Type) FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type)

#define DECLARE_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type)                                               \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_DELEGATE_RetVal_TwoParams(ReturnType, DelegateName, Param1Type, Param2Type)                            \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type)
#define DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type)                                     \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_EVENT_TwoParams(OwningType, EventName, Param1Type, Param2Type)                                         \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type)

#define DECLARE_DELEGATE_ThreeParams(DelegateName, Param1Type, Param2Type, Param3Type)                                 \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_DELEGATE_RetVal_ThreeParams(ReturnType, DelegateName, Param1Type, Param2Type, Param3Type)              \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type)
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param2Type, Param3Type)                       \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_EVENT_ThreeParams(OwningType, EventName, Param1Type, Param2Type, Param3Type)                           \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type, Param3Type)

#define DECLARE_DELEGATE_FourParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type)                      \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DELEGATE_RetVal_FourParams(ReturnType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type)   \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type)            \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_EVENT_FourParams(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type)                \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DELEGATE_FiveParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)          \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DELEGATE_RetVal_FiveParams(                                                                            \
	ReturnType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)                              \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_MULTICAST_DELEGATE_FiveParams(                                                                         \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)                                          \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_EVENT_FiveParams(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)    \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DELEGATE_SixParams(                                                                                    \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)                              \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DELEGATE_RetVal_SixParams(                                                                             \
	ReturnType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)                  \
	FUNC_DECLARE_DELEGATE(                                                                                             \
		DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_MULTICAST_DELEGATE_SixParams(                                                                          \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)                              \
	FUNC_DECLARE_MULTICAST_DELEGATE(                                                                                   \
		DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_EVENT_SixParams(                                                                                       \
	OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)                     \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DELEGATE_SevenParams(                                                                                  \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)                  \
	FUNC_DECLARE_DELEGATE(                                                                                             \
		DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_DELEGATE_RetVal_SevenParams(                                                                           \
	ReturnType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)      \
	FUNC_DECLARE_DELEGATE(                                                                                             \
		DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_MULTICAST_DELEGATE_SevenParams(                                                                        \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)                  \
	FUNC_DECLARE_MULTICAST_DELEGATE(                                                                                   \
		DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_EVENT_SevenParams(                                                                                     \
	OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)         \
	FUNC_DECLARE_EVENT(                                                                                                \
		OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DELEGATE_EightParams(                                                                                  \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)      \
	FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type,  \
		Param7Type, Param8Type)
#define DECLARE_DELEGATE_RetVal_EightParams(ReturnType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type,  \
	Param5Type, Param6Type, Param7Type, Param8Type)                                                                    \
	FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type,        \
		Param6Type, Param7Type, Param8Type)
#define DECLARE_MULTICAST_DELEGATE_EightParams(                                                                        \
	DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)      \
	FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type,    \
		Param6Type, Param7Type, Param8Type)
#define DECLARE_EVENT_EightParams(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type,   \
	Param6Type, Param7Type, Param8Type)                                                                                \
	FUNC_DECLARE_EVENT(OwningType, EventName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type,  \
		Param7Type, Param8Type)
