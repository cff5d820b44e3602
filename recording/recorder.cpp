#include "recording/recorder.h"

namespace recording
{

Recorder *current = nullptr;

} // namespace recording
