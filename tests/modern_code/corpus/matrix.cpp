// Small matrices, with code of every age side by side: template closers written as C++03 wanted
// them, alternative operator spellings, token pasting with digraphs, CRTP, variadic templates,
// a generator coroutine, and a `<::` that is not a digraph.
#include <array>
#include <coroutine>
#include <cstddef>
#include <exception>
#include <map>
#include <utility>
#include <vector>

%:define GLUE(a, b) a %:%: b
#define MAKE_NAME(n) GLUE(matrix_, n)

namespace algebra {

template <typename Derived>
struct printable {
  int width() const { return static_cast<Derived const&>(*this).columns() * 4; }
};

template <std::size_t Rows, std::size_t Columns>
class matrix : public printable<matrix<Rows, Columns> > {
public:
  constexpr matrix() noexcept = default;
  constexpr double& operator()(std::size_t r, std::size_t c) noexcept { return cells_[r * Columns + c]; }
  constexpr double operator()(std::size_t r, std::size_t c) const noexcept { return cells_[r * Columns + c]; }
  constexpr int columns() const { return static_cast<int>(Columns); }
  template <std::size_t Other>
  constexpr matrix<Rows, Other> operator*(matrix<Columns, Other> const& right) const {
    matrix<Rows, Other> product;
    for (std::size_t r = 0; r < Rows; ++r)
      for (std::size_t c = 0; c < Other; ++c)
        for (std::size_t k = 0; k < Columns; ++k) product(r, c) += (*this)(r, k) * right(k, c);
    return product;
  }
private:
  std::array<double, Rows * Columns> cells_{};
};

template <typename... Rows>
auto rows_of(Rows&&... rows) { return std::vector<std::vector<double> >{std::forward<Rows>(rows)...}; }

struct generator {
  struct promise_type {
    int current = 0;
    generator get_return_object() { return generator{std::coroutine_handle<promise_type>::from_promise(*this)}; }
    std::suspend_always initial_suspend() noexcept { return {}; }
    std::suspend_always final_suspend() noexcept { return {}; }
    std::suspend_always yield_value(int value) noexcept { current = value; return {}; }
    void return_void() noexcept {}
    void unhandled_exception() { std::terminate(); }
  };
  explicit generator(std::coroutine_handle<promise_type> h) : handle(h) {}
  generator(generator&& other) noexcept : handle(std::exchange(other.handle, {})) {}
  ~generator() { if (handle) handle.destroy(); }
  bool next() { handle.resume(); return not handle.done(); }
  int value() const { return handle.promise().current; }
  std::coroutine_handle<promise_type> handle;
};

inline generator diagonal(int n) {
  for (int i = 0; i < n; ++i) co_yield i * (n + 1);
}

}  // namespace algebra

std::map<int, std::vector<std::pair<int, int> > > MAKE_NAME(index);

int main() {
  algebra::matrix<2, 3> a;
  algebra::matrix<3, 2> b;
  a(0, 0) = 1.5; b(0, 0) = 2.0;
  auto const c = a * b;
  std::vector<::algebra::matrix<2, 2> > many(3);
  auto rows = algebra::rows_of(std::vector<double>{1, 2}, std::vector<double>{3, 4});
  auto g = algebra::diagonal(3);
  int sum = 0;
  while (g.next()) sum += g.value();
  bool const ok = c(0, 0) == 3.0 and not rows.empty() and (sum == 12 or many.size() == 3);
  matrix_index[0].push_back({1, 2});
  return ok and a.width() == 12 ? 0 : 1;
}
