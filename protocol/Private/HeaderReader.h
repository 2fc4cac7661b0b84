// SPDX-License-Identifier: MIT
/** Reads verified FlatBuffers tables back into the structure of records. */
#pragma once

#include "Zef/Items.h"

#include "tandem_generated.h"

namespace Zef
{

/** The item whose body is of that type; None for a number outside the schema. */
EItem ItemOf(Wire::Body Body);

/** Structure and counts of a mesh. Text is taken as it is; absent strings are empty, absent transforms the identity. */
void ReadMesh(const Wire::Mesh& Table, FMeshHeader& OutHeader);

/** Layouts of a joint sequence. */
std::vector<FJointTable> ReadTables(const Wire::JointSequence& Table);

} // namespace Zef
