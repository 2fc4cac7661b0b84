// SPDX-License-Identifier: MIT
/** Pictures. */
#pragma once

#include "WidgetView.h"

namespace Host
{

/** For SImage; null for others. */
std::unique_ptr<FWidgetView> MakeImageView(FViewWorld& World, const TSharedRef<SWidget>& Model);

} // namespace Host
