# Compiler and linker settings that every target shares.

find_program(MOLD mold)
if(MOLD)
  add_link_options(-fuse-ld=mold)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Debug lines only: back traces stay readable and the objects stay small.
  add_compile_options($<$<NOT:$<CONFIG:Debug>>:-g1> -fpch-preprocess)
endif()

if(KURVO_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Warnings are errors in our own code.
add_library(kurvo_warnings INTERFACE)
if(MSVC)
  target_compile_options(kurvo_warnings INTERFACE /W4 /WX /utf-8)
else()
  target_compile_options(kurvo_warnings INTERFACE -Wall -Wextra -Wshadow -Wconversion -Werror)
endif()
# Between the calls of the sanitizers GCC 12 loses sight of what a variant has been given.
if(KURVO_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(kurvo_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
# GCC 12 takes "text" + std::string for an overflow where it optimises fully.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13
   AND CMAKE_CXX_FLAGS_RELEASE MATCHES "-O[23]")
  target_compile_options(kurvo_warnings INTERFACE
    "$<$<CONFIG:Release>:-Wno-stringop-overflow;-Wno-restrict;-Wno-array-bounds>")
endif()
