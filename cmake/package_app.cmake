# Leaves in QUILLOMAT_APP_DIR exactly what is handed out: copied anywhere, it runs. Only the presets that ship share
# build/app; every other build has a folder of its own.
set(app_folder ${QUILLOMAT_APP_DIR})
add_custom_target(app ALL
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:Quillomat> ${CMAKE_SOURCE_DIR}/assets/Cheats.dat
          ${CMAKE_SOURCE_DIR}/assets/readme.txt ${app_folder}
  DEPENDS Quillomat
  COMMENT "Collecting ${app_folder}"
  VERBATIM)
