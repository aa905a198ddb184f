# Builds the Octave package into ${CMAKE_BINARY_DIR}/octave: the gateway
# __vor2__.oct and the generated +VOR2 folder. Add that folder to Octave's
# path (addpath) to use the package.
execute_process(COMMAND ${MKOCTFILE} -p OCTINCLUDEDIR OUTPUT_VARIABLE OCTAVE_INCLUDE_DIR
                OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${MKOCTFILE} -p OCTLIBDIR OUTPUT_VARIABLE OCTAVE_LIB_DIR OUTPUT_STRIP_TRAILING_WHITESPACE)
set(VOR2_OCTAVE_DIR ${CMAKE_BINARY_DIR}/octave)

add_library(vor2_octave_gateway MODULE binding/octave/Vor2Gateway.cc)
set_target_properties(vor2_octave_gateway PROPERTIES PREFIX "" OUTPUT_NAME "__vor2__" SUFFIX ".oct"
                      LIBRARY_OUTPUT_DIRECTORY ${VOR2_OCTAVE_DIR})
target_include_directories(vor2_octave_gateway PRIVATE ${OCTAVE_INCLUDE_DIR}/.. ${OCTAVE_INCLUDE_DIR}
                           ${CMAKE_CURRENT_SOURCE_DIR})
target_link_directories(vor2_octave_gateway PRIVATE ${OCTAVE_LIB_DIR})
target_link_libraries(vor2_octave_gateway PRIVATE vor2 octinterp octave)
target_compile_options(vor2_octave_gateway PRIVATE -Wall -Wextra)

# The generator and the class folder it writes.
add_executable(vor2_octave_classes binding/generator/GenerateClassdef.cpp)
target_link_libraries(vor2_octave_classes PRIVATE vor2)
target_include_directories(vor2_octave_classes PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_options(vor2_octave_classes PRIVATE -Wall -Wextra)
add_custom_command(OUTPUT ${VOR2_OCTAVE_DIR}/+VOR2/.stamp
                   COMMAND vor2_octave_classes ${VOR2_OCTAVE_DIR}/+VOR2
                   COMMAND ${CMAKE_COMMAND} -E touch ${VOR2_OCTAVE_DIR}/+VOR2/.stamp
                   DEPENDS vor2_octave_classes vor2
                   COMMENT "Writing the +VOR2 class folder")
add_custom_target(vor2_octave ALL DEPENDS ${VOR2_OCTAVE_DIR}/+VOR2/.stamp vor2_octave_gateway)

# The C++ side of the Octave timing (bench/octave): not built by default.
add_executable(vor2_build_10k EXCLUDE_FROM_ALL bench/octave/Build10k.cpp)
target_link_libraries(vor2_build_10k PRIVATE vor2)
target_compile_options(vor2_build_10k PRIVATE -Wall -Wextra)
