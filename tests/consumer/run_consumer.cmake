# Installs the build into a fresh prefix, builds the consumer against it and
# runs it. Called by ctest with ORQ_BUILD_DIR, CONSUMER_SOURCE_DIR, WORK_DIR.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${ORQ_BUILD_DIR}" --prefix "${prefix}"
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(rc)
  message(FATAL_ERROR "install failed: ${rc}")
endif()
foreach(header orq.h orq_app.h orq_export.h gen_export.h gen_undo_redo_mgr.h)
  if(NOT EXISTS "${prefix}/include/orq/${header}")
    message(FATAL_ERROR "installed package lacks include/orq/${header}")
  endif()
endforeach()
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${CONSUMER_SOURCE_DIR}" -B "${WORK_DIR}/build"
                        "-DCMAKE_PREFIX_PATH=${prefix}" -DCMAKE_BUILD_TYPE=Release
                RESULT_VARIABLE rc)
if(rc)
  message(FATAL_ERROR "configuring the consumer failed: ${rc}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/build" RESULT_VARIABLE rc)
if(rc)
  message(FATAL_ERROR "building the consumer failed: ${rc}")
endif()
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{HOME} "${WORK_DIR}")
set(ENV{XDG_CONFIG_HOME} "${WORK_DIR}/.config")
execute_process(COMMAND "${WORK_DIR}/build/orq_consumer" RESULT_VARIABLE rc OUTPUT_VARIABLE out
                WORKING_DIRECTORY "${WORK_DIR}")
message(STATUS "${out}")
if(rc OR NOT out MATCHES "consumer ok")
  message(FATAL_ERROR "the consumer did not run: ${rc}")
endif()
