// SPDX-License-Identifier: MIT
#include "Zef/Peer/JointAnimationStore.h"

namespace Zef::Peer
{

std::unique_ptr<IJointAnimationStore> MakeGltfJointAnimationStore(const std::filesystem::path&)
{
	return nullptr;
}

} // namespace Zef::Peer
