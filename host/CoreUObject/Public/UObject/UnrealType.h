// SPDX-License-Identifier: MIT
/** Properties of all kinds, and walking over them. */
#pragma once

#include "UObject/PropertyBase.h"
#include "UObject/PropertyChangedEvent.h"
#include "UObject/PropertyContainers.h"
#include "UObject/PropertyObjects.h"
#include "UObject/PropertyStructs.h"
#include "UObject/PropertyTexts.h"
#include "UObject/PropertyIterator.h"
#include "UObject/PropertyNumbers.h"
