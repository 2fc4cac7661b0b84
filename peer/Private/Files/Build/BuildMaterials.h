// SPDX-License-Identifier: MIT
/** Materials and textures of an object. */
#pragma once

#include "Files/Model/Model.h"

namespace Zef::Peer
{

/**
 * Replaces the numbers of the model's materials in the sections by keys, and adds those materials, with the images that
 * these use, each under a key of its own from 0 on. Maps that stand in one channel of an image become grey images: the
 * editor's masters read the red channel.
 */
void BuildMaterials(FModel& Model, FSurfaceMesh& Mesh);

/** The look of the fifteen that suits a material: by a word in its name, else metal where it shines like it, else
 * matte. */
int MaterialKindOf(const FModelMaterial& Material);

} // namespace Zef::Peer
