// SPDX-License-Identifier: MIT
/** Reads verified FlatBuffers tables back into the structure of records, within a budget of memory. */
#pragma once

#include "MemoryBudget.h"
#include "Zef/Fault.h"
#include "Zef/Items.h"
#include "Zef/Wire.h"

#include "tandem_generated.h"

namespace Zef
{

/** The item whose body is of that type; None for a number outside the schema. */
EItem ItemOf(Wire::Body Body);

/** The kind of the item whose header that is; None when it is no valid one. */
EItem KindOfHeader(FByteView Header);

/**
 * Copies tables into records. Text is taken as it is; absent strings are empty, absent transforms the identity.
 *
 * Many references may name one table or text, so a short header can stand for much memory: each copy is taken from the
 * budget before it is made.
 */
class FHeaderReader
{
public:
	explicit FHeaderReader(FMemoryBudget& InBudget);

	/** Structure and counts of a mesh. False when the budget does not hold them: then Fault tells where it ended. */
	bool ReadMesh(const Wire::Mesh& Table, FMeshHeader& OutHeader);

	/** Layouts of a joint sequence; the same. */
	bool ReadTables(const Wire::JointSequence& Table, std::vector<FJointTable>& OutTables);

	/** What ended the reading; its path begins at the table that was read. */
	FLinkFault Fault;

private:
	template <class TVector>
	bool Reserve(const TVector* Vector, std::size_t ElementBytes, const char* Name);
	bool ReadText(const flatbuffers::String* String, std::string& OutText, const char* Name);
	bool ReadSurface(const Wire::Surface& Table, FSurface& OutSurface, FSurfaceCounts& OutCounts);
	bool ReadExpression(const Wire::Expression& Table, FMaterialExpression& OutExpression);
	bool ReadMaterial(const Wire::Material& Table, FMaterial& OutMaterial);
	/** Both give false, for a return. */
	bool OverBudget(const char* Name);
	bool Inside(const char* List, std::size_t Index);

	FMemoryBudget& Budget;
};

} // namespace Zef
