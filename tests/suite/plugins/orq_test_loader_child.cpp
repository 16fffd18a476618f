// Loads a library through the process's loader and prints what it got. The
// dynamic linker reads LD_LIBRARY_PATH once, at process start, so the
// search-path rule can only be seen in a fresh process.
//
// Usage: orq_test_loader_child <library name> <function> [app]
// With "app" a QCoreApplication exists while loading, so the executable's
// directory comes from Qt rather than from /proc/self/exe.
#include <gen_library_loader.h>

#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <memory>

int main(int argc, char** argv)
{
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s <library name> <function> [app]\n", argv[0]);
    return 2;
  }
  std::unique_ptr<QCoreApplication> app;
  if (argc > 3 && std::strcmp(argv[3], "app") == 0)
    app = std::make_unique<QCoreApplication>(argc, argv);

  GEN_LIBRARY_LOADER& loader = gen_library_loader();
  const QString name = QString::fromLocal8Bit(argv[1]);
  std::printf("beside: %s\n", qPrintable(GEN_LIBRARY_LOADER::file_name_for(name)));
  GEN_LIBRARY_LOADER::HANDLE library = loader.load(name);
  void* function = library ? loader.find_function(library, QString::fromLocal8Bit(argv[2])) : nullptr;
  if (!function) {
    std::printf("error: %s\ndata: %s\n", qPrintable(loader.system_error()), qPrintable(loader.error_data()));
    return 1;
  }
  int (*answer)() = nullptr;
  // Object and function pointers may not be cast into each other portably;
  // copying the bits is what dlsym() users do.
  std::memcpy(&answer, &function, sizeof answer);
  std::printf("answer: %d\n", answer());
  return loader.unload(library) ? 0 : 3;
}
