// playscenario PROGRAM FILE: plays the scenario at every pace and says what went wrong.
#include <cstdio>

#include "tests/support/play.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    fprintf(stderr, "usage: playscenario PROGRAM FILE\n");
    return 2;
  }
  struct {
    tarn::Pace pace;
    const char* name;
  } paces[] = {{tarn::Pace::together, "keys typed together"},
               {tarn::Pace::apart, "keys typed apart"},
               {tarn::Pace::repainted, "painted anew after each step"}};
  tarn::Scenario scenario = tarn::readscenario(argv[2]);
  for (auto& pace : paces) {
    std::string fault = tarn::play(scenario, {argv[1], pace.pace});
    if (fault.empty()) continue;
    printf("(%s)\n%s", pace.name, fault.c_str());
    return 1;
  }
  return 0;
}
