// The directory of a target: the only place where it may touch files. It is empty at first, and
// gone when the process ends by itself.
#pragma once

#include <string>

namespace tarn {

const std::string& targetdirectory();  // its absolute path, without "/" at the end

void cleardirectory();  // empties it
void fillfile(const std::string& name, const std::string& bytes);

}  // namespace tarn
