// SPDX-License-Identifier: MIT
/** Numbers of the master materials, as FMaterial::MaterialKind counts them. */
#pragma once

namespace Zef::Peer::Kind
{

enum : int
{
	Matte,
	Shiny,
	Metal,
	Plastic,
	Leather,
	Silk,
	Velvet,
	GlassGem,
	Fur,
	Light,
	Glitter,
	GlassGemToo, // 11 shows the same master as 7
	Skin,
	Iridescence,
	KnitWear
};

} // namespace Zef::Peer::Kind
