# SQLite for the Windows products: the amalgamation that tools/fetch_sqlite.sh puts below build/, made into the target that
# find_package gives elsewhere.
set(SQLITE_AMALGAMATION "${PROJECT_SOURCE_DIR}/build/sqlite" CACHE PATH "Folder of sqlite3.c and sqlite3.h")
if(NOT EXISTS ${SQLITE_AMALGAMATION}/sqlite3.c)
  message(FATAL_ERROR "No SQLite sources in ${SQLITE_AMALGAMATION}: run tools/fetch_sqlite.sh first")
endif()
add_library(sqlite3 STATIC ${SQLITE_AMALGAMATION}/sqlite3.c)
target_include_directories(sqlite3 SYSTEM PUBLIC ${SQLITE_AMALGAMATION})
# For size: at full speed the 32-bit DLL would be at its limit of 3 MB.
target_compile_options(sqlite3 PRIVATE -w -Os)
target_compile_definitions(sqlite3 PRIVATE SQLITE_OMIT_LOAD_EXTENSION)
add_library(SQLite::SQLite3 ALIAS sqlite3)
