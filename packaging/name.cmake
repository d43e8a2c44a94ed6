# Read by cpack at each packing. The folder's name contains the date, so that a later delivery unpacked in the
# same place does not overwrite the database of an earlier one.
string(TIMESTAMP day "%Y-%m-%d")
set(CPACK_PACKAGE_FILE_NAME "Uferwart-${CPACK_PACKAGE_VERSION}-${day}")
