// Name, keywords (proto2, proto3 and editions, with the scalar types and the literals), default
// extensions and structures.
#include "proto_language.h"

#include "proto_structures.h"

tarnel_engine::language_description const& proto_language() {
    static tarnel_engine::language_description const language = {
        "Protocol Buffers",
        {"syntax", "edition", "import", "weak", "public", "package", "option", "message", "enum", "service", "rpc",
         "returns", "stream", "oneof", "map", "repeated", "optional", "required", "reserved", "extensions", "extend",
         "to", "max", "group", "double", "float", "int32", "int64", "uint32", "uint64", "sint32", "sint64", "fixed32",
         "fixed64", "sfixed32", "sfixed64", "bool", "string", "bytes", "true", "false", "inf", "nan"},
        {"proto"},
        proto_structures(),
        tarnel_engine::lexed_as::protocol_buffers,
    };
    return language;
}
