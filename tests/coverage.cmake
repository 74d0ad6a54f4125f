# How much of the logic its tests run: `cmake --build --preset coverage` prints it and fails below
# the two floors. The ways that only an exception takes are left out of the branches, as each call
# has one.
find_program(GCOVR gcovr)
if(NOT TESSARINE_COVERAGE OR NOT GCOVR)
  return()
endif()

get_directory_property(logic_folders DIRECTORY "${CMAKE_SOURCE_DIR}/src" DEFINITION logic_folders)
list(JOIN logic_folders "|" any_logic_folder)
add_custom_target(coverage
  # What earlier runs counted.
  COMMAND find "${CMAKE_BINARY_DIR}" -name "*.gcda" -delete
  COMMAND logic_tests --gtest_brief=1
  COMMAND fault_tests --gtest_brief=1
  COMMAND "${GCOVR}" --root "${CMAKE_SOURCE_DIR}" --object-directory "${CMAKE_BINARY_DIR}"
          --filter "${CMAKE_SOURCE_DIR}/src/(${any_logic_folder})/"
          --exclude-throw-branches --exclude-unreachable-branches
          --print-summary --txt coverage.txt --html-details coverage.html
          --fail-under-line 95 --fail-under-branch 85 "${CMAKE_BINARY_DIR}"
  VERBATIM)
