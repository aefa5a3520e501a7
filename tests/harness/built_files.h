// Where the build put what the tests use: the executable, the test plugins, the SDK example.
#ifndef STYLE_TARNEL_TESTS_BUILT_FILES_H
#define STYLE_TARNEL_TESTS_BUILT_FILES_H

#include <QString>

namespace built {

inline QString executable() { return STYLE_TARNEL_BUILT_EXECUTABLE; }
inline QString source_dir() { return STYLE_TARNEL_SOURCE_DIR; }
inline QString build_dir() { return STYLE_TARNEL_BUILD_DIR; }

// Test plugins, built from the SDK by their own project (tests/test_plugins):
// "Test" language, a twin reporting the same name, the "Other" language, a Qt plugin without
// the interface, and a shared library that is no Qt plugin.
inline QString test_plugin(QString const& file) { return QString(STYLE_TARNEL_TEST_PLUGINS_DIR "/") + file; }
inline QString test_language_plugin() { return test_plugin("libtest-language-plugin.so"); }
inline QString twin_language_plugin() { return test_plugin("libtwin-language-plugin.so"); }
inline QString other_language_plugin() { return test_plugin("libother-language-plugin.so"); }
// "Test" again, declaring that its revise() may run on several threads at once.
inline QString reentrant_language_plugin() { return test_plugin("libreentrant-language-plugin.so"); }
inline QString learning_language_plugin() { return test_plugin("liblearning-language-plugin.so"); }
inline QString starts_learning_language_plugin() { return test_plugin("libstarts-learning-language-plugin.so"); }
inline QString plugin_without_interface() { return test_plugin("libno-interface-plugin.so"); }
inline QString library_without_plugin() { return test_plugin("libno-qt-plugin.so"); }

// The SDK's example plugin, built out of tree from sdk/example.
inline QString example_plugin() { return QString(STYLE_TARNEL_SDK_EXAMPLE_DIR "/libini-language-plugin.so"); }

}  // namespace built

#endif
