// A small task scheduler in C++20: concepts and requires clauses, three-way comparison,
// consteval, designated initialisers, lambdas with template parameters, ranges, spans, char8_t.
#include <algorithm>
#include <array>
#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <ranges>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tasks {

template <typename T>
concept has_priority = requires(T const& t) {
  { t.priority } -> std::convertible_to<int>;
  { t.name } -> std::convertible_to<std::string_view>;
};

template <typename T>
concept numeric = std::integral<T> || std::floating_point<T>;

struct task {
  std::string name;
  int priority = 0;
  long budget_ms = 1'500;
  auto operator<=>(task const&) const = default;
};

consteval int weight_of(int priority) { return priority * 10 + 1; }

constexpr std::array<int, 4> weights{weight_of(0), weight_of(1), weight_of(2), weight_of(3)};

template <has_priority T>
void sort_by_priority(std::vector<T>& items) {
  std::ranges::sort(items, std::greater{}, &T::priority);
}

template <numeric N>
constexpr N clamp_to(N value, N low, N high) requires(sizeof(N) <= 8) {
  return value < low ? low : value > high ? high : value;
}

inline auto urgent(std::span<task const> all) {
  return all | std::views::filter([](task const& t) { return t.priority > 2; })
             | std::views::transform([](task const& t) { return t.name; });
}

inline constexpr auto twice = []<typename T>(T value) { return value + value; };

inline int total_budget(std::span<task const> all) {
  int total = 0;
  for (auto const& [name, priority, budget] : all) {
    (void)name;
    total += static_cast<int>(budget) * weights[static_cast<std::size_t>(clamp_to(priority, 0, 3))];
  }
  return total;
}

}  // namespace tasks

int main() {
  using namespace tasks;
  std::vector<task> all{{.name = "build", .priority = 3, .budget_ms = 12'000},
                        {.name = "test", .priority = 2},
                        {.name = "deploy", .priority = 4, .budget_ms = 60'000}};
  sort_by_priority(all);
  auto const cmp = all[0] <=> all[1];
  std::vector<std::string> names;
  for (auto const& n : urgent(all)) names.push_back(n);
  char8_t const* label = u8"t\u00e2ches";
  char16_t const* wide = u"tasks";
  char32_t const* wider = U"tasks";
  wchar_t const* native = L"tasks";
  auto const raw = R"json({"name": "build", "path": "C:\tmp"})json";
  auto const raw8 = u8R"(a "quoted" piece)";
  if (cmp == std::strong_ordering::equal || names.empty()) return 1;
  return twice(1) == 2 && label && wide && wider && native && raw && raw8 ? total_budget(all) % 2 : 1;
}
