# The test programs that run on every platform, one a floor of the house. `add` is the platform's function that makes a program.
macro(add_portable_tests add)
  cmake_language(CALL ${add} base FOLDERS base/vb base/late base/ado base/controls base/workstation LINKS ado controls workstation)
  cmake_language(CALL ${add} suite FOLDERS suite/engine suite/shop suite/helpers LINKS shop_support)
  cmake_language(CALL ${add} src FOLDERS src/faces src/module src/lists src/records src/register src/editor src/itementry src/fetch
                 src/counter src/printing src/entry LINKS shop_support)
endmacro()
