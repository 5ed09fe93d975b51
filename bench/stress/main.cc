#include <iostream>
#include <map>
#include <string>

#include "bench/stress/stress.h"

namespace Stress = ZQ7Standard::Stress;

// zq7_stress PART FOLDER
int main(int argc, char** argv) {
  const std::map<std::string, bool (*)(const Stress::Folder&)> parts = {
      {"kills", Stress::Kills},
      {"full", Stress::FullDisk},
      {"crowd", Stress::Crowd},
      {"power", Stress::PowerCuts}};
  if (argc != 3 || !parts.contains(argv[1])) {
    std::cerr << "zq7_stress kills|full|crowd|power FOLDER\n";
    return 2;
  }
  return parts.at(argv[1])(argv[2]) ? 0 : 1;
}
