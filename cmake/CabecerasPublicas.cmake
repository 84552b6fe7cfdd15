# The public headers, all in one folder: a program that uses the library has that folder's parent on its path, and no
# room's name. The rooms include each other as "model/Elementos.h"; the copies say "Elementos.h".

# Copies the headers given (relative to src) and all that they include into `destino`, and nothing else stays there.
# An edit of any of them configures again. `resultado` receives the copies' paths.
function(zel_cabeceras_publicas resultado destino)
  set(pendientes ${ARGN})
  set(vistas)
  set(copias)
  while(pendientes)
    list(POP_FRONT pendientes cabecera)
    if(cabecera IN_LIST vistas)
      continue()
    endif()
    list(APPEND vistas ${cabecera})
    set(origen ${PROJECT_SOURCE_DIR}/src/${cabecera})
    if(NOT EXISTS ${origen})
      message(FATAL_ERROR "No header src/${cabecera} (headers are included by room)")
    endif()
    set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${origen})

    cmake_path(GET cabecera FILENAME nombre)
    set(copia ${destino}/${nombre})
    if(copia IN_LIST copias)
      message(FATAL_ERROR "Two public headers are called ${nombre}, one of them src/${cabecera}")
    endif()
    list(APPEND copias ${copia})

    file(READ ${origen} texto)
    # The standard's headers and Qt's have neither a slash nor a point.
    if(texto MATCHES "#include (<[^>]*[/.][^>]*>)")
      message(FATAL_ERROR "The public header src/${cabecera} needs ${CMAKE_MATCH_1}, which a program outside may lack")
    endif()
    string(REGEX MATCHALL "#include \"[^\"]+\"" inclusiones "${texto}")
    list(TRANSFORM inclusiones REPLACE "#include \"(.*)\"" "\\1")
    list(APPEND pendientes ${inclusiones})

    string(REGEX REPLACE "#include \"[^\"]*/" "#include \"" texto "${texto}")
    set(anterior)
    if(EXISTS ${copia})
      file(READ ${copia} anterior)
    endif()
    if(NOT "${texto}" STREQUAL "${anterior}")
      file(WRITE ${copia} "${texto}")
    endif()
  endwhile()

  file(GLOB sobrantes ${destino}/*)
  list(REMOVE_ITEM sobrantes ${copias})
  if(sobrantes)
    file(REMOVE ${sobrantes})
  endif()
  set(${resultado} ${copias} PARENT_SCOPE)
endfunction()
