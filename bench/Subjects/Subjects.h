// SPDX-License-Identifier: MIT
/** What can be measured; each prepares its data, compares the results of all contenders, and adds what is to be timed.
 */
#pragma once

namespace Bench
{

class FSuite;

/** Surface mesh to dynamic mesh, beside libraries that build the topology alone. */
void MeasureDynamicMesh(FSuite& Suite);
/** Soft vertices of a skinned character, beside a search for equal vertices. */
void MeasureSkeletalMesh(FSuite& Suite);
/** The checks of a received mesh, beside one reading of its bytes. */
void MeasureChecker(FSuite& Suite);
/** One update between two processes, beside the bare socket and a copy. */
void MeasureLink(FSuite& Suite);
/** From bytes to components in the scene, beside an import of the same content. */
void MeasureRoad(FSuite& Suite);

} // namespace Bench
