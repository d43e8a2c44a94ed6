#pragma once

/// From here on the disk is full at the `place`th write of the database library, counted from 1, and stays
/// so.
void fillDiskAtWrite(int place);
