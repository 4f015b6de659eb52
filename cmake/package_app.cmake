# Copies the files of a release, and no others, to QUILLOMAT_APP_DIR, where the program runs. Only the presets for
# releases share build/app; every other build has its own folder.
set(app_folder ${QUILLOMAT_APP_DIR})
add_custom_target(app ALL
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${app_folder}
  COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:Quillomat> ${CMAKE_SOURCE_DIR}/assets/Cheats.dat
          ${CMAKE_SOURCE_DIR}/assets/readme.txt ${app_folder}
  DEPENDS Quillomat
  COMMENT "Collecting ${app_folder}"
  VERBATIM)
