// Units of measure with user-defined literals, digraphs in a table, attributes, C++23 features
// clang 19 knows: if consteval, deducing this, the size_t literal suffix, multidimensional
// subscripts left out (libstdc++ 12 has no mdspan).
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace units {

struct metres { long double value; };
struct seconds { long double value; };

constexpr metres operator""_m(long double v) { return {v}; }
constexpr metres operator""_km(long double v) { return {v * 1'000}; }
constexpr metres operator""_km(unsigned long long v) { return {static_cast<long double>(v) * 1'000}; }
constexpr seconds operator""_s(long double v) { return {v}; }
inline std::string operator""_label(char const* text, std::size_t size) { return std::string(text, size); }

constexpr long double speed(metres d, seconds t) { return d.value / t.value; }

struct counter {
  int hits = 0;
  template <typename Self>
  auto&& get(this Self&& self) { return std::forward<Self>(self).hits; }
};

constexpr int mode() {
  if consteval { return 1; } else { return 2; }
}

[[nodiscard, gnu::pure]] inline int table_sum() {
  static int const table<:3:><:2:> = <%<%1, 2%>, <%3, 4%>, <%5, 6%>%>;
  int sum = 0;
  for (auto const& row : table) for (int cell : row) sum += cell;
  return sum;
}

[[deprecated("use speed")]] inline long double velocity(metres d, seconds t) { return speed(d, t); }

enum class [[nodiscard]] outcome : unsigned char { ok = 0b0000'0001, late = 0b0000'0010 };

}  // namespace units

%:define TWICE(x) ((x) + (x))

int main() {
  using namespace units;
  constexpr auto d = 42.195_km;
  constexpr auto t = 7'384.0_s;
  auto const pace = speed(d, t);
  auto const name = "marathon"_label;
  counter c;
  c.get() += TWICE(2);
  std::vector<int> v(10uz);
  static_assert(mode() == 1);
  switch (table_sum()) {
    case 21: [[likely]] break;
    default: [[unlikely]] return 1;
  }
  return pace > 0 && name.size() == 8 && c.hits == 4 && v.size() == 10 && (1_km).value > 0 ? 0 : 1;
}
