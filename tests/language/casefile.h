// Programs of the language and what they show, from data files. The README beside it has the forms
// of the files.
#pragma once

#include <string>
#include <vector>

namespace tarn {

struct Case {
  std::string where;  // file and line
  std::string program;
  std::string wanted;
};

// The cases of a file, in its order: by its name's ending a list, a program with its answer, or a
// document. Where it cannot be read the process ends with status 1.
std::vector<Case> readcasefile(const std::string& path);

}  // namespace tarn
