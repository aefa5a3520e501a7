// Shapes and a registry of them, written in no style in particular.
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace geometry
{
namespace detail
{
inline double square(double x)
{
    return x * x;
}
}

class shape
{
public:
    virtual ~shape() = default;
    virtual double area() const = 0;
    virtual std::string name() const
    {
        return "shape";
    }
};

class circle : public shape
{
public:
    explicit circle(double radius) : radius_(radius), label_("circle") {}
    double area() const override
    {
        return 3.14159265358979 * detail::square(radius_);
    }

private:
    double radius_;
    std::string label_;
};

template <typename T>
class registry
{
public:
    void add(const std::string &key, std::unique_ptr<T> value)
    {
        items_[key] = std::move(value);
    }
    T &at(const std::string &key)
    {
        auto found = items_.find(key);
        if (found == items_.end())
            throw std::out_of_range("no shape named " + key);
        return *found->second;
    }
    template <typename F>
    void for_each(F &&visit)
    {
        for (auto &item : items_)
            visit(*item.second);
    }

private:
    std::map<std::string, std::unique_ptr<T>> items_;
};

double total_area(registry<shape> &shapes,
                  const std::vector<std::string> &names_of_the_shapes_to_add_up,
                  double scale)
{
    double total = 0;
    for (const auto &name : names_of_the_shapes_to_add_up)
    {
        try
        {
            total += shapes.at(name).area() * scale;
        }
        catch (const std::out_of_range &error)
        {
            continue;
        }
    }
    auto is_large = [scale](double area) { return area * scale > 100.0; };
    shapes.for_each(
        [&](shape &s)
        {
            if (is_large(s.area()))
                total += 0;
        });
    return total > 0 ? total : 0;
}
}
