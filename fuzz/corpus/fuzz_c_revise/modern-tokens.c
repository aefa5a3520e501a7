/* Modern C: separators, prefixes, digraphs, generic selections. */
#include <uchar.h>
%:define KIND(x) _Generic((x), int: 1, default: 0)
constexpr int big = 1'000'000;
static_assert(big > 0);
[[nodiscard]] static int twice(int v){return v*2;}
struct point{int x,y;};
int main(void){
  char const*a=(char const*)u8"x";char16_t const*b=u"x";char32_t const*c=U"x";
  int g<:2:>=<%1,2%>;
  typeof(g[0]) h=0b1010'0101;
  struct point p={.y=1,.x=2};
  _Static_assert(sizeof(int)>=2,"int");
  return KIND(h)+twice(p.x)+(a&&b&&c)+g<:1:>;
}
