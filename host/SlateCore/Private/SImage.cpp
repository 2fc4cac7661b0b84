// SPDX-License-Identifier: MIT

#include "Widgets/Images/SImage.h"

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ColorAndOpacity = InArgs._ColorAndOpacity;
}
