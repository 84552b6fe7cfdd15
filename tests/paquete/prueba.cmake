# Installs the library under the build folder `obra` and, with that copy alone, builds and runs the host of this
# folder. A step that fails ends the test with its output.
set(carpeta ${obra}/paquete)
set(prefijo ${carpeta}/prefijo)
file(REMOVE_RECURSE ${carpeta})

function(paso)
  execute_process(COMMAND ${ARGN} TIMEOUT 240 COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# README.md shows this program's own code.
file(READ ${raiz}/README.md readme)
foreach(trozo "cmake:CMakeLists.txt" "cpp:anfitrion.cpp")
  string(REPLACE ":" ";" trozo ${trozo})
  list(POP_FRONT trozo lengua archivo)
  if(NOT readme MATCHES "```${lengua}\n([^`]+)```")
    message(FATAL_ERROR "README.md shows no ${lengua}")
  endif()
  set(mostrado "${CMAKE_MATCH_1}")
  file(READ ${CMAKE_CURRENT_LIST_DIR}/${archivo} codigo)
  string(FIND "${codigo}" "${mostrado}" donde)
  if(donde EQUAL -1)
    message(FATAL_ERROR "README.md shows other code than tests/paquete/${archivo}:\n${mostrado}")
  endif()
endforeach()

paso(${CMAKE_COMMAND} --install ${obra} --config ${config} --prefix ${prefijo})
paso(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${carpeta}/obra -G ${generador}
     -D CMAKE_PREFIX_PATH=${prefijo} -D CMAKE_CXX_COMPILER=${compilador} -D CMAKE_CXX_COMPILER_LAUNCHER=${lanzador}
     -D CMAKE_CXX_FLAGS=${banderas})
file(STRINGS ${carpeta}/obra/CMakeCache.txt encontrado REGEX "^ZELVisorEsquemas_DIR:")
if(NOT encontrado MATCHES "=${prefijo}/")
  message(FATAL_ERROR "Another package was found: ${encontrado}")
endif()
paso(${CMAKE_COMMAND} --build ${carpeta}/obra)

set(ENV{QT_QPA_PLATFORM} offscreen)
foreach(programa ${carpeta}/obra/anfitrion ${prefijo}/bin/zelvisor)
  execute_process(COMMAND ldd ${programa} OUTPUT_VARIABLE bibliotecas COMMAND_ERROR_IS_FATAL ANY)
  if(NOT bibliotecas MATCHES "libZELVisorEsquemas[^ ]* => ([^ ]+)" OR NOT CMAKE_MATCH_1 MATCHES "^${prefijo}/")
    message(FATAL_ERROR "${programa} does not run on the installed library:\n${bibliotecas}")
  endif()
endforeach()
paso(${carpeta}/obra/anfitrion)
paso(${prefijo}/bin/zelvisor info ${raiz}/examples/cuenca.xml)

# What a program by name finds is the installed library.
set(ENV{XDG_DATA_HOME} ${carpeta}/datos)
paso(${prefijo}/bin/zelvisor --registra)
file(GLOB registro ${carpeta}/datos/zel/componentes/*.json)
file(READ ${registro} texto)
string(JSON ruta GET "${texto}" ruta)
file(REAL_PATH ${prefijo} prefijo_real)
if(NOT ruta MATCHES "^${prefijo_real}/.*/libZELVisorEsquemas")
  message(FATAL_ERROR "The record names another library: ${ruta}")
endif()
