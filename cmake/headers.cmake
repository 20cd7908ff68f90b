# Headers that nearly every file includes, read once for all targets that are compiled alike instead of once a file. Sources do not
# lean on it: they include what they use, and a build without it must pass.
option(PRECOMPILE "Precompile the headers that everybody includes" OFF)
set(STANDARD_HEADERS <algorithm> <functional> <map> <memory> <optional> <span> <string> <string_view> <variant> <vector>)

# A set of precompiled headers, made with the options that hold where this is called. LINKS: what the headers come from.
function(add_headers set)
  cmake_parse_arguments(H "" "" "LINKS" ${ARGN})
  if(NOT PRECOMPILE)
    return()
  endif()
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/headers_${set}.cpp CONTENT "// Precompiles the set ${set}.\n")
  add_library(headers_${set} OBJECT ${CMAKE_BINARY_DIR}/headers_${set}.cpp)
  target_link_libraries(headers_${set} PRIVATE house_flags ${H_LINKS})
  target_precompile_headers(headers_${set} PRIVATE ${H_UNPARSED_ARGUMENTS})
endfunction()

# The target reads the set of headers instead of the files themselves.
function(use_headers target set)
  if(PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM headers_${set})
  endif()
endfunction()
