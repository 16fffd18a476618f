# Compiler settings shared by every target of the project.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

find_program(ORQ_CCACHE ccache)
if(ORQ_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORQ_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wno-unused-parameter)
# Qt's string macros must not silently convert from const char* in our code.
add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
                        QT_DEPRECATED_WARNINGS)

if(ORQ_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()

if(ORQ_BUILD_FUZZ)
  # The library code is what is fuzzed: it needs the coverage instrumentation.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(ORQ_CUSTOMER_BUILD)
  add_compile_definitions(ORQ_CUSTOMER_BUILD)
endif()

include(GNUInstallDirs)
# Installed binaries find the library beside them in lib/.
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# The suite's shared libraries bind calls to their own exported functions
# inside the library, as Qt's own libraries do: the loader then resolves a
# few hundred fewer symbols at every tool's start-up. Interposing those
# functions from outside is not supported, and cannot be relied on anyway:
# Qt is built with reduce_relocations, so every client is compiled -fPIC and
# takes a function's address from the library, keeping pointers equal.
function(orq_bind_own_functions target)
  target_link_options(${target} PRIVATE "LINKER:-Bsymbolic-functions")
endfunction()
