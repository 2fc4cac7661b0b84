// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/** The programs of the graphics device. The drawing library fills in the lines that begin with its own tags. */
namespace Host::Shaders
{

/** Every surface: as it is seen, and only where it stands. */
extern const char* const SurfaceVertex;
std::string SurfaceFragment();
std::string SurfaceDepthFragment();

/** Backdrop and floor behind everything, at their depth. */
std::string BackdropFragment();

/** How much of the surroundings a point sees, from a picture of depths; then the same without its noise. */
extern const char* const OcclusionFragment;
extern const char* const OcclusionBlurFragment;

/** A line around what a picture of depths shows. */
extern const char* const OutlineFragment;

// Parts that several programs share.
extern const char* const FrameDeclarations;
extern const char* const ToneCurve;
extern const char* const PixelNoise;
extern const char* const ShadowLookup;
extern const char* const SurfaceDeclarations;
extern const char* const Noise;
extern const char* const SurfaceDetail;
extern const char* const Lighting;

} // namespace Host::Shaders
