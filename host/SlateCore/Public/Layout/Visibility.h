// SPDX-License-Identifier: MIT
#pragma once

// Whether a widget is seen, takes space and takes the pointer.

#include "CoreMinimal.h"

struct EVisibility
{
	/** Seen, and takes the pointer. */
	static const EVisibility Visible;
	/** Neither seen nor laid out. */
	static const EVisibility Collapsed;
	/** Not seen, but keeps its space. */
	static const EVisibility Hidden;
	/** Seen; the pointer goes through it and its children. */
	static const EVisibility HitTestInvisible;
	/** Seen; the pointer goes through it, but not through its children. */
	static const EVisibility SelfHitTestInvisible;

	/** Visible. */
	constexpr EVisibility() = default;

	bool IsVisible() const { return Value <= 2; }
	bool IsHitTestVisible() const { return Value == 0; }

	bool operator==(const EVisibility& Other) const { return Value == Other.Value; }
	bool operator!=(const EVisibility& Other) const { return Value != Other.Value; }

private:
	constexpr explicit EVisibility(uint8 InValue)
		: Value(InValue)
	{
	}

	uint8 Value = 0;
};

inline const EVisibility EVisibility::Visible{0};
inline const EVisibility EVisibility::SelfHitTestInvisible{1};
inline const EVisibility EVisibility::HitTestInvisible{2};
inline const EVisibility EVisibility::Hidden{3};
inline const EVisibility EVisibility::Collapsed{4};
