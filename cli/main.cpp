#include <iostream>

int main() {
  std::cerr << "dicemill-cli: not built yet\n";
  return 1;
}
