// An inventory of items with quantities and prices.
#pragma once
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace shop
{
struct item { std::string name; int quantity = 0; double price = 0.0; };

class inventory {
public:
    inventory() = default;
    explicit inventory(std::vector<item> items);
  void add(const item &what);
  bool remove(const std::string& name, int quantity);
  std::optional<item> find(const std::string &name) const;
  double value() const { return total_value_; }
  template<typename Predicate> std::vector<item> select(Predicate keep) const {
    std::vector<item> chosen;
    for (const auto &entry : items_) if (keep(entry.second)) chosen.push_back(entry.second);
    return chosen;
  }
private:
  std::map<std::string, item> items_;
  double total_value_ = 0;
};
}
