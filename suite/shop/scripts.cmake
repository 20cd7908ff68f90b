# The embedded scripts of the room shop: a function of scripts.h and the file it gives.
set(folder ${CMAKE_CURRENT_LIST_DIR})
set(SHOP_SCRIPT_LIST
  SchemaScript=${folder}/schema.sql
  ReplicationScript=${folder}/replication.sql
  ShopsScript=${folder}/sample/shops.sql
  ItemsScript=${folder}/sample/items.sql
  PackingScript=${folder}/sample/packing.sql
  StockScript=${folder}/sample/stock.sql
  DocumentsScript=${folder}/sample/documents.sql
  RequestsScript=${folder}/sample/requests.sql)
set(scriptFiles ${SHOP_SCRIPT_LIST})
list(TRANSFORM scriptFiles REPLACE "^[A-Za-z]+=" "")
add_custom_command(
  OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/shop_scripts.cpp
  COMMAND ${CMAKE_COMMAND} -DOUTPUT=${CMAKE_CURRENT_BINARY_DIR}/shop_scripts.cpp "-DSCRIPTS=${SHOP_SCRIPT_LIST}"
          -P ${CMAKE_CURRENT_LIST_DIR}/embed_scripts.cmake
  DEPENDS ${scriptFiles} ${CMAKE_CURRENT_LIST_DIR}/embed_scripts.cmake
  VERBATIM)
target_sources(shop PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/shop_scripts.cpp)
