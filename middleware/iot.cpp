/*
 * iot.cpp - the IoT gateway pages: the LoRaWAN radio, device profiles,
 * devices with their sensor readings and threshold alarm rules, and the
 * alarm actions per IoT alarm rule.
 */
#include "internal.h"

using mw::add;

/* ==== radio, profiles, devices and sensor alarms ==== */

/* ==== end radio, profiles, devices and sensor alarms ==== */


/* ==== alarm actions per IoT alarm rule ==== */

/* ==== end alarm actions per IoT alarm rule ==== */
