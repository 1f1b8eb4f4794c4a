# brisquel_resources(TARGET SCRIPT): compiles a resource script with windres and embeds the result
# in TARGET, where the function EmbeddedResources() (platform/embedded_resources.h) finds it.
find_program(WINDRES NAMES x86_64-w64-mingw32-windres windres REQUIRED)

function(brisquel_resources target script)
  set(script ${CMAKE_SOURCE_DIR}/${script})
  get_filename_component(folder ${script} DIRECTORY)
  set(compiled ${CMAKE_BINARY_DIR}/${target}.res)
  file(GLOB_RECURSE inputs CONFIGURE_DEPENDS ${folder}/*.rc ${folder}/*.h ${folder}/*.png)
  add_custom_command(
    OUTPUT ${compiled}
    COMMAND ${WINDRES} --preprocessor=gcc --preprocessor-arg=-E --preprocessor-arg=-xc
            --preprocessor-arg=-DRC_INVOKED -c 65001 -I ${folder} -J rc -O res
            ${script} ${compiled}
    DEPENDS ${inputs}
    VERBATIM)
  set(source ${CMAKE_BINARY_DIR}/${target}_resources.cpp)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/embedded_resources.cpp.in ${source} @ONLY)
  set_source_files_properties(${source} PROPERTIES OBJECT_DEPENDS ${compiled})
  target_sources(${target} PRIVATE ${source})
endfunction()
