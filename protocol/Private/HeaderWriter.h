// SPDX-License-Identifier: MIT
/** Writes the structure of records into FlatBuffers tables; arrays are written as their counts. */
#pragma once

#include "Zef/Items.h"

#include "tandem_generated.h"

namespace Zef
{

flatbuffers::Offset<Wire::Mesh> WriteMesh(flatbuffers::FlatBufferBuilder& Builder, const FSurfaceMesh& Mesh);
flatbuffers::Offset<Wire::JointSequence> WriteSequence(
	flatbuffers::FlatBufferBuilder& Builder, const FPackedJointSequence& Sequence);

} // namespace Zef
