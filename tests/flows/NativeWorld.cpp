#include "flows/NativeWorld.h"

namespace vantor::flows {

std::unique_ptr<World> MakeWorld(Steps& steps) { return std::make_unique<NativeWorld>(steps); }

}  // namespace vantor::flows
