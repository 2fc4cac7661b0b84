// SPDX-License-Identifier: MIT
/** Keeps the storage of large arrays for the next item: memory that was touched before takes data several times faster.
 */
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <mutex>
#include <new>
#include <utility>

namespace Zef
{

/** Arrays below so many bytes are left to the allocator, which keeps those warm itself. */
inline constexpr std::size_t SmallestPooledBytes = 16u << 10;

/** Items that begin before a stored array that nobody took is released. */
inline constexpr std::uint64_t PoolRounds = 32;

/**
 * Storage of one kind of array, thread-safe.
 *
 * @tparam TArray  movable; an empty one holds no memory
 * @tparam TOps  static functions: std::size_t Capacity(const TArray&) in elements, ElementBytes constant
 */
template <class TArray, class TOps>
class TArrayPool
{
public:
	/**
	 * An array with room for Count elements, of unspecified length and content, or an empty one when there is none that
	 * fits without wasting more than half of it.
	 */
	TArray Take(std::size_t Count)
	{
		if (Count * TOps::ElementBytes < SmallestPooledBytes)
		{
			return TArray();
		}
		const std::lock_guard Lock(Mutex);
		const auto Found = Free.lower_bound(Count);
		if (Found == Free.end() || Found->first / 2 > Count)
		{
			return TArray();
		}
		TArray Array = std::move(Found->second.Array);
		Free.erase(Found);
		return Array;
	}

	/** Stores an array that is no longer needed; releases it when there is no memory for the note of it. */
	void Give(TArray&& Array) noexcept
	{
		const std::size_t Capacity = TOps::Capacity(Array);
		if (Capacity * TOps::ElementBytes < SmallestPooledBytes)
		{
			return;
		}
		const std::lock_guard Lock(Mutex);
		try
		{
			Free.emplace(Capacity, FEntry{std::move(Array), Round});
		}
		catch (const std::bad_alloc&)
		{
			Array = TArray();
		}
	}

	/** A further item begins: releases what has not been of use for long. */
	void NextRound()
	{
		const std::lock_guard Lock(Mutex);
		++Round;
		for (auto Each = Free.begin(); Each != Free.end();)
		{
			Each = Round - Each->second.Round > PoolRounds ? Free.erase(Each) : std::next(Each);
		}
	}

private:
	struct FEntry
	{
		TArray Array;
		std::uint64_t Round;
	};

	std::mutex Mutex;
	std::multimap<std::size_t, FEntry> Free; // by capacity
	std::uint64_t Round = 0;
};

} // namespace Zef
