/*
 * event.cpp - the event pages: the alarm actions per event type, and the
 * event sources, upload servers and global switches.
 */
#include "internal.h"

using mw::add;

/* ==== alarm actions per event type ==== */

/* ==== end alarm actions per event type ==== */


/* ==== event sources, upload servers and global switches ==== */

/* ==== end event sources, upload servers and global switches ==== */
