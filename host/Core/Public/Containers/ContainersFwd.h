// SPDX-License-Identifier: MIT
/** Forward declarations of the containers with their default template arguments. */
#pragma once

#include "HAL/Platform.h"

template <int IndexSize>
class TSizedDefaultAllocator;
using FDefaultAllocator = TSizedDefaultAllocator<32>;
using FHeapAllocator = TSizedDefaultAllocator<32>;
using FDefaultAllocator64 = TSizedDefaultAllocator<64>;
class FDefaultSetAllocator;

template <typename T, typename Allocator = FDefaultAllocator>
class TArray;
template <typename T>
using TArray64 = TArray<T, FDefaultAllocator64>;
template <typename T, typename SizeType = int32>
class TArrayView;
template <typename T, typename SizeType = int32>
using TConstArrayView = TArrayView<const T, SizeType>;
template <typename T, typename Allocator = FDefaultAllocator>
class TIndirectArray;

template <typename T>
struct DefaultKeyFuncs;
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>,
	typename Allocator = FDefaultSetAllocator>
class TSet;

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
using TDefaultMapKeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>;
template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapKeyFuncs<InKeyType, InValueType, false>>
class TMap;
template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapKeyFuncs<InKeyType, InValueType, true>>
class TMultiMap;

template <typename CharType>
class TStringView;
using FStringView = TStringView<TCHAR>;
using FAnsiStringView = TStringView<ANSICHAR>;
