# Turns the SQL scripts into C++ string literals, one function a script:
#   cmake -DOUTPUT=file.cpp "-DSCRIPTS=Name=path;Name=path" -P embed_scripts.cmake
set(text "#include \"suite/shop/scripts.h\"\n\nnamespace suite {\n")
foreach(script ${SCRIPTS})
  string(REGEX MATCH "^([A-Za-z]+)=(.*)$" matched "${script}")
  set(name ${CMAKE_MATCH_1})
  file(READ "${CMAKE_MATCH_2}" content)
  # One literal a batch, because compilers bound the length of a single literal.
  string(REPLACE "\ngo\n" "\ngo\n)sql\"\n    R\"sql(" content "${content}")
  string(APPEND text "\nstd::string_view ${name}() {\n  return R\"sql(${content})sql\";\n}\n")
endforeach()
string(APPEND text "\n}  // namespace suite\n")
file(WRITE "${OUTPUT}" "${text}")
