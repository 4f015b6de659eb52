# Leaves in build/app exactly what is handed out: copied anywhere, it runs.
set(app_folder ${CMAKE_SOURCE_DIR}/build/app)
add_custom_target(app ALL
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:Quillomat> ${CMAKE_SOURCE_DIR}/assets/Cheats.dat
          ${CMAKE_SOURCE_DIR}/assets/readme.txt ${app_folder}
  DEPENDS Quillomat
  COMMENT "Collecting build/app"
  VERBATIM)
