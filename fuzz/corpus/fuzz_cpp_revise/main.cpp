#include "inventory.h"
#include <iostream>

int main()
{
  shop::inventory stock({{"apple", 10, 0.5}, {"pear", 4, 0.75}, {"melon", 1, 3.0}});
  try {
    stock.add({"apple", 5, 0.5});
    if (!stock.remove("pear", 2)) std::cerr << "not enough pears\n";
  } catch (const std::exception &error) {
    std::cerr << error.what() << '\n'; return 1;
  }
  auto cheap = stock.select([](const shop::item &i) { return i.price < 1.0; });
  for (const auto &each : cheap) std::cout << each.name << ": " << each.quantity << " at " << each.price << '\n';
  std::cout << "total value of the stock after the changes above: " << stock.value() << " (in the shop's currency)\n";
  return 0;
}
