# Read by cpack at each packing. The day is in the folder's name, so that a later delivery, unpacked in the same
# place, never falls on the file of a club that works with an earlier one.
string(TIMESTAMP day "%Y-%m-%d")
set(CPACK_PACKAGE_FILE_NAME "Uferwart-${CPACK_PACKAGE_VERSION}-${day}")
