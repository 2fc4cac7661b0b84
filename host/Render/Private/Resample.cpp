// SPDX-License-Identifier: MIT
#include "Resample.h"

namespace Host
{

FImage PictureFromDevice(
	const std::vector<uint8_t>& Pixels, int32_t Width, int32_t Height, int32_t Scale, bool bCovered)
{
	FImage Image;
	Image.Width = Width;
	Image.Height = Height;
	Image.Pixels.resize(size_t(Width) * size_t(Height) * 4);
	const size_t RowBytes = size_t(Width) * size_t(Scale) * 4;
	const uint32_t Samples = uint32_t(Scale * Scale);
	for (int32_t Y = 0; Y < Height; ++Y)
	{
		const size_t FirstRow = size_t(Height - 1 - Y) * size_t(Scale);
		uint8_t* Out = &Image.Pixels[size_t(Y) * size_t(Width) * 4];
		for (int32_t X = 0; X < Width; ++X, Out += 4)
		{
			uint32_t Sum[4] = {0, 0, 0, 0};
			uint32_t Shares = 0;
			for (int32_t SubY = 0; SubY < Scale; ++SubY)
			{
				const uint8_t* In = &Pixels[(FirstRow + size_t(SubY)) * RowBytes + size_t(X) * size_t(Scale) * 4];
				for (int32_t SubX = 0; SubX < Scale; ++SubX, In += 4)
				{
					const uint32_t Share = bCovered ? 255u : In[3];
					for (int Channel = 0; Channel < 3; ++Channel)
					{
						Sum[Channel] += uint32_t(In[Channel]) * Share;
					}
					Shares += Share;
					Sum[3] += In[3];
				}
			}
			const uint32_t Weight = Shares > 0 ? Shares : 1;
			Out[0] = uint8_t((Sum[2] + Weight / 2) / Weight);
			Out[1] = uint8_t((Sum[1] + Weight / 2) / Weight);
			Out[2] = uint8_t((Sum[0] + Weight / 2) / Weight);
			Out[3] = uint8_t((Sum[3] + Samples / 2) / Samples);
		}
	}
	return Image;
}

} // namespace Host
