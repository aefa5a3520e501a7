// A shared library that is no Qt plugin: it has no plugin metadata and no root object.
extern "C" int some_function_of_a_plain_library() { return 42; }
