#include "Subjects/Subjects.h"
namespace Bench
{
void MeasureLink(FSuite&) {}
} // namespace Bench
