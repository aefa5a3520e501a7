// An inventory of parts, written with the features of C++17: structured bindings, fold
// expressions, if constexpr, std::optional and std::variant, inline variables, nested namespaces.
#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

namespace shop::stock {

inline constexpr std::uint64_t largest_count = 1'000'000'000;
inline constexpr std::uint32_t flags_mask = 0xFFFF'0000u;
inline constexpr double ratio = 0.000'125;

struct part { std::string name; std::uint64_t count; double price; };

using quantity = std::variant<std::uint64_t, double, std::string>;

template <typename... Values>
constexpr auto sum_of(Values... values) { return (values + ... + 0); }

template <typename... Values>
constexpr bool all_positive(Values... values) { return ((values > 0) && ...); }

template <typename T>
std::string describe(T const& value) {
    if constexpr (std::is_integral_v<T>) return "count " + std::to_string(value);
    else if constexpr (std::is_floating_point_v<T>) return "weight " + std::to_string(value);
    else return "label " + std::string(value);
}

class inventory {
public:
  void add(part p) { parts_[p.name] = std::move(p); }
  [[nodiscard]] std::optional<part> find(std::string_view name) const {
    if (auto it = parts_.find(std::string(name)); it != parts_.end()) return it->second;
    return std::nullopt;
  }
  [[nodiscard]] double value() const {
    double total = 0;
    for (auto const& [name, p] : parts_) { (void)name; total += p.count * p.price; }
    return total;
  }
  std::vector<std::pair<std::string, std::uint64_t>> counts() const {
    std::vector<std::pair<std::string, std::uint64_t>> result;
    std::transform(parts_.begin(), parts_.end(), std::back_inserter(result),
      [](auto const& entry) { auto const& [key, p] = entry; return std::pair{key, p.count}; });
    return result;
  }
private:
  std::map<std::string, part> parts_;
};

inline std::string show(quantity const& q) {
  return std::visit([](auto const& v) { return describe(v); }, q);
}

inline auto split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, start)) {
    pieces.push_back(text.substr(start, at - start)); start = at + 1;
  }
  pieces.push_back(text.substr(start));
  return pieces;
}

static_assert(sum_of(1, 2, 3) == 6);
static_assert(all_positive(1, 2'000, 3));
static_assert(largest_count > 999'999'999);

}  // namespace shop::stock

int main() {
  using namespace shop::stock;
  inventory store;
  store.add({"bolt", 12'000, 0.05});
  store.add({reinterpret_cast<char const*>(u8"\u00e9crou"), 8'500, 0.03});
  auto [name, count] = std::tuple{std::string("nut"), 3};
  auto const total = store.value() + count + name.size();
  std::vector<quantity> quantities{std::uint64_t{5}, 2.5, std::string("box")};
  std::string all;
  for (auto const& q : quantities) all += show(q) + ";";
  auto const sum = std::accumulate(all.begin(), all.end(), 0, [](int a, char c) { return a + (c == ';'); });
  return total > 0 && sum == 3 && split("a,b,c", ',').size() == 3 ? 0 : 1;
}
