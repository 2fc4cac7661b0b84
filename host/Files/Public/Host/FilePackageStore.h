// SPDX-License-Identifier: MIT
// Packages as files of the mounted content folders.
#pragma once

#include "CoreMinimal.h"
#include "Host/PackageStore.h"

namespace Host
{
/**
 * Packages as files that other tools read: "/ZEFTandem/Material/UE/M_ZEF_Silk" is the file
 * "Material/UE/M_ZEF_Silk.json" of the folder that "/ZEFTandem" is mounted on. Materials are the only kind so far.
 */
class FFilePackageStore : public IPackageStore
{
public:
	/** Whether the package has a file. */
	virtual bool Exists(const FString& LongPackageName) override;

	/**
	 * Makes the package and the asset in it from the file.
	 *
	 * @return null, with an error in the log that names the file and what is wrong, when there is none or it is bad
	 */
	virtual UObject* Load(const FString& LongPackageName) override;
};
} // namespace Host
