#include "Subjects/Subjects.h"
namespace Bench
{
void MeasureRoad(FSuite&) {}
} // namespace Bench
