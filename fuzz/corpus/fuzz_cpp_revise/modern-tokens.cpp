// Modern tokens: separators, prefixes, raw strings, digraphs, user literals.
#include <string>
#include <utility>
#include <vector>
constexpr long big=1'000'000;
auto operator""_km(unsigned long long v){return v*1'000;}
struct task{int p;auto operator<=>(task const&)const=default;};
int main(){
  auto a=u8"x";auto b=u"x";auto c=U"x";auto d=L"x";char8_t e=u8'a';
  auto r=R"x(a )" b)x";auto r8=u8R"(z)";
  int t<:2:>=<%1,2%>;
  auto [p,q]=std::pair{1,2};
  auto f=[]<typename... T>(T... v){return (v+...+0);};
  std::vector<std::vector<int> > old;
  if constexpr(sizeof(int)==4){return 12_km>0&&t<:0:>&&a&&b&&c&&d&&e&&r&&r8;}
  return p+q+f(1)+static_cast<int>(old.size());
}
