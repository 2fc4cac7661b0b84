// SPDX-License-Identifier: MIT
/** A garment application that answers every update with one object. */
#pragma once

#include "Zef/Records.h"

#include <memory>
#include <string>

namespace Bench
{

/** Serves until the socket is closed; writes one byte to it when it is ready. */
void ServeMesh(const std::string& Endpoint, std::shared_ptr<const Zef::FSurfaceMesh> Mesh, Zef::EObjectType ObjectType,
	int Socket);

} // namespace Bench
