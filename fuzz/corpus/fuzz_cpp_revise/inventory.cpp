#include "inventory.h"

#include <stdexcept>

namespace shop {

inventory::inventory(std::vector<item> items) : items_(), total_value_(0) {
  for (auto &each : items) add(each);
}

void inventory::add(const item& what)
{
    if (what.quantity <= 0)
        throw std::invalid_argument("quantity must be positive: " + what.name);
    auto &entry = items_[what.name];
    entry.name = what.name; entry.price = what.price;
    entry.quantity += what.quantity;
    total_value_ += what.quantity * what.price;
}

bool inventory::remove(const std::string &name, int quantity) {
	auto found = items_.find(name);
	if (found == items_.end() || found->second.quantity < quantity) return false;
	found->second.quantity -= quantity;
	total_value_ -= quantity * found->second.price;
	if (found->second.quantity == 0) items_.erase(found);
	return true;
}

std::optional<item> inventory::find(const std::string &name) const
{
  auto found = items_.find(name);
  if (found != items_.end()) { return found->second; }
  else { return std::nullopt; }
}

}  // namespace shop
