// The product's identity: the names the settings store is keyed by, and the texts that show them.
#ifndef STYLE_TARNEL_CORE_PRODUCT_H
#define STYLE_TARNEL_CORE_PRODUCT_H

#include <string>

namespace product {

constexpr char organisation_name[] = "Style Tarnel";
constexpr char organisation_domain[] = "style-tarnel.org";
constexpr char title[] = "Style Tarnel";
constexpr char version[] = "2.0.0";
constexpr char web_site[] = "https://style-tarnel.org";

// What "-v" prints before the version number: an executable of this product answers "-v" with
// this and a version (an update may bring another version).
inline std::string version_line_lead() { return std::string(title) + ", version "; }

}  // namespace product

#endif
