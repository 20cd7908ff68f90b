# A room is a folder whose sources make one static library. Its arrows are the libraries it links; there are no others.
add_library(house_flags INTERFACE)
target_include_directories(house_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(house_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping, endless and outlying copies in plain string sums once it optimises; the sanitizers watch for real ones.
  target_compile_options(house_flags INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
if(SANITIZE)
  target_compile_options(house_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(house_flags INTERFACE -fsanitize=address,undefined)
endif()

# The standard headers that nearly every file includes, read once a target instead of once a file. Sources do not lean on it: they
# include what they use, and a build without it must pass.
option(PRECOMPILE "Precompile the standard headers" OFF)
if(PRECOMPILE)
  target_precompile_headers(house_flags INTERFACE <algorithm> <functional> <map> <memory> <optional> <span> <string> <string_view>
                            <variant> <vector>)
endif()

function(add_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${ROOM_UNPARSED_ARGUMENTS}/*.cpp)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE house_flags ${ROOM_LINKS})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC house_flags ${ROOM_LINKS})
endfunction()
