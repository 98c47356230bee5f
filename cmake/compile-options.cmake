# What every target of ours is compiled with. The variables count in this project only, also when it is part of another.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
if(PROJECT_IS_TOP_LEVEL OR NOT CMAKE_RUNTIME_OUTPUT_DIRECTORY) # else where the other project wants its programs
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endif()
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Precompiled headers and a second checkout share cached objects only with these settings. The cache is one for all
  # checkouts of the user (scripts/cache-folder says where), so that a fresh clone finds what an older one compiled.
  set(ccache_folder "")
  if(NOT DEFINED ENV{CCACHE_DIR})
    execute_process(COMMAND ${PROJECT_SOURCE_DIR}/scripts/cache-folder ccache OUTPUT_VARIABLE ccache_folder
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ccache_folder CCACHE_DIR=${ccache_folder})
    # Precompiled headers are large: read once for their checksum, not for every source; what is not known is compiled at
    # once, without being preprocessed first.
    execute_process(COMMAND ${CMAKE_COMMAND} -E env ${ccache_folder} ${CCACHE_PROGRAM} -o max_size=5G -o inode_cache=true
                            -o depend_mode=true
                    OUTPUT_QUIET)
  endif()
  set(ccache_launcher ${CMAKE_COMMAND} -E env ${ccache_folder} CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
      CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
  set(CMAKE_C_COMPILER_LAUNCHER ${ccache_launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache_launcher})
endif()

set(BARWRIGHT_SANITIZE "" CACHE STRING "Sanitizers for the native build, as given to -fsanitize")

# What a source needs that includes our headers, a host's too.
add_library(barwright_usage INTERFACE)
target_compile_features(barwright_usage INTERFACE cxx_std_20)

# For our own sources alone, so that bought ones and a host's keep their own warnings: link it PRIVATE.
add_library(barwright_options INTERFACE)
target_link_libraries(barwright_options INTERFACE barwright_usage)
target_compile_options(barwright_options INTERFACE -Wall -Wextra -Werror -Wno-unknown-pragmas)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees an overlap in every literal + std::string.
  target_compile_options(barwright_options INTERFACE -Wno-restrict -fpch-preprocess)
endif()
if(WIN32)
  # Message-map entries name handlers without qualification and reach protected base handlers.
  # Windows structures are read through more than one type everywhere (NMHDR and its extensions, RECT as two POINTs).
  target_compile_options(barwright_usage INTERFACE -fms-extensions -fno-strict-aliasing)
  target_compile_definitions(barwright_usage INTERFACE UNICODE _UNICODE NOMINMAX WINVER=0x0A00 _WIN32_WINNT=0x0A00
                                                      _WIN32_IE=0x0A00)
  add_compile_options($<$<CONFIG:Debug>:-g1>)
  option(BARWRIGHT_DEBUG_SYMBOLS "Debug symbols in release builds, too, as packages want them")
  if(BARWRIGHT_DEBUG_SYMBOLS)
    add_compile_options(-g)
  endif()
  # gcc_s, stdc++ and winpthread are shared: exceptions and type information cross our DLLs.
endif()
option(BARWRIGHT_FUZZ "Programs of libFuzzer in place of tests; the compiler is Clang")
if(BARWRIGHT_SANITIZE)
  # Optimized a little: what the sanitizers add would otherwise take most of the tests' time.
  add_compile_options(-O1 -fsanitize=${BARWRIGHT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${BARWRIGHT_SANITIZE})
endif()
