// An amount in Thai words, from C++: words 121.50
#include <ZQ7Standard/BahtStringObject.h>

#include <cstdlib>
#include <iostream>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  ZQ7Standard::BahtStringObject baht;
  std::cout << ZQ7Standard::Utf8(baht.BahtString(std::atof(argv[1]))) << '\n';
}
