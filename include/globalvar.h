#ifndef GLOBALVAR_H
#define GLOBALVAR_H

// The data keys a host and the views share, and the integer names of the views' fields.
// May touch: nothing. The numbers and spellings are the host contract; never change one.

#include <QtGlobal>

/// \file
/// The data keys: under which number a view finds a value, in which unit and scale, and which page
/// shows it.

using INT32 = qint32;   ///< Signed, 32 bits.
using UINT32 = quint32; ///< Unsigned, 32 bits.
using UINT8 = quint8;   ///< Unsigned, 8 bits.

/// Keys of a snapshot, the `QMap<int, QVariant>` that a host fills and a view shows.
///
/// A view asks for each key it shows and takes what it gets: **a key that is not in the map reads
/// as 0 or as empty text**, and so does a value that is no number or text. No view can tell a
/// missing value from a 0; a host that can says so beside the view. Numbers are `int`s in the unit
/// given below: "0.1 A" means that 52 is 5.2 A. A value beyond the range given is shown as it is
/// unless the text says otherwise.
///
/// The last words of an entry name the pages that show it: *flow* (Energyline), *alarms*
/// (RTEventForm), *detail* (RateInfoForm), *chart1* and *chart3* (RTSingleGraphForm,
/// RTThreeGraphForm; *charts*: both) and *table* (RTDataForm). The charts read unsigned numbers: a
/// negative one becomes huge, which a gauge shows as `--`.
///
/// Three-phase quantities have a key for each of the lines A, B and C (L1, L2, L3); single-phase
/// ones stand in A. Powers have a `_Hi` and a `_Lo` word: put the whole number into `_Hi`.
enum _UPS_REG_ENUM : int {
    // Real-time values.
    /// What the battery does. 1 unknown, 3 low, 4 depleted, 5 self-test, 6 boost charge, 7 float
    /// charge, 8 discharge, 9 normal; send no other. 0 and 2 are "Normal" to flow and table and
    /// empty to detail; beyond 9, flow and detail show nothing and the table "Normal". While it is
    /// 6 or 7, *flow* shows the line from rectifier to battery on bypass and hides it on utility
    /// supply, as it is meant. Flow, detail, table.
    realdata_BatteryStatus = 0,
    realdata_SecondsOnBat, ///< s since the load went to battery, 0 while it is not. Detail, table.
    realdata_MinutesRemaining, ///< min the battery will last. Flow, detail, table.
    /// %, 0 to 100. Beyond that the battery of *flow* is filled past its body, and the gauges show
    /// `--`. Flow, detail, charts, table. *chart1* captions it "Remaining battery time(Min)".
    realdata_ChargeRemaining,
    /// 0.1 V DC. The gauge of *chart3* ends at 600 V, or at 1000 V where the voltage lies in 601 to
    /// 1000 V; above, it shows `--`. Flow, detail, charts, table.
    realdata_BatVoltage,
    /// 0.1 A DC, signed as the device signs it; for *chart3* its magnitude, 0 to 200 A. Detail,
    /// chart3, table.
    realdata_BatCurrent,
    /// Battery temperature, 0 to 100 degrees Celsius, else `--`. **Mind the two scales**: 0.1
    /// degrees in flow and detail, whole degrees in chart3 and table, so that a host which shows
    /// both makes two snapshots. *chart1* has a gauge for it that always shows `--`.
    realdata_BatTemp,
    realdata_InputLineBads, ///< Number of mains failures. Detail, table.
    /// Lines of the input: 1 or 3, no other. What is neither is three lines to *flow* and one to
    /// detail and table. *chart3* shows three whatever it says.
    realdata_InputNumLines,
    /// V RMS, line A to neutral. Curves end at 400 V. Flow, detail, charts, table.
    realdata_InputVoltage_A,
    realdata_InputVoltage_B, ///< Line B. Flow, detail, chart3, table.
    realdata_InputVoltage_C, ///< Line C. Flow, detail, chart3, table.
    realdata_InputCurrent_A, ///< 0.1 A RMS. Flow, detail, table.
    realdata_InputCurrent_B, ///< Line B.
    realdata_InputCurrent_C, ///< Line C.
    realdata_InputFre_A, ///< 0.1 Hz; gauge and curves end at 100 Hz. Flow, detail, charts, table.
    realdata_InputFre_B, ///< Line B. Detail, chart3, table.
    realdata_InputFre_C, ///< Line C. Detail, chart3, table.
    /// W of line A. Detail (as "input PF:", line A alone), table.
    realdata_InputPower_A_Hi,
    realdata_InputPower_A_Lo, ///< 0: no page reads it.
    realdata_InputPower_B_Hi, ///< W of line B. Table.
    realdata_InputPower_B_Lo, ///< 0: no page reads it.
    realdata_InputPower_C_Hi, ///< W of line C. Table.
    realdata_InputPower_C_Lo, ///< 0: no page reads it.
    /// What feeds the load, in the numbers of upsOutputSource in the UPS-MIB (RFC 1628): 1 other, 2
    /// none, 3 utility, 4 bypass, 5 battery, 6 booster, 7 reducer. 3, 4 and 5 switch the lines of
    /// *flow* on, any other switches them off. 0 is none; beyond 7, flow and detail show nothing
    /// and the table "None supply". Flow, detail, table.
    realdata_OutputSource,
    realdata_OutputFre,      ///< 0.1 Hz of all lines. Flow, detail, charts, table.
    realdata_OutputNumLines, ///< Lines of the output, as realdata_InputNumLines.
    /// V RMS, line A to neutral. Curves end at 400 V. Flow, detail, charts, table.
    realdata_OutputVoltage_A,
    realdata_OutputVoltage_B, ///< Line B. Flow, detail, chart3, table.
    realdata_OutputVoltage_C, ///< Line C. Flow, detail, chart3, table.
    realdata_OutputCurrent_A, ///< 0.1 A RMS. Flow, detail, table.
    realdata_OutputCurrent_B, ///< Line B.
    realdata_OutputCurrent_C, ///< Line C.
    /// Power of line A. **Mind the two units**: kW in flow, W in detail (line A alone) and table.
    realdata_OutputPower_A_Hi,
    realdata_OutputPower_A_Lo, ///< 0: no page reads it.
    realdata_OutputPower_B_Hi, ///< Line B: kW in flow, W in the table.
    realdata_OutputPower_B_Lo, ///< 0: no page reads it.
    realdata_OutputPower_C_Hi, ///< Line C: kW in flow, W in the table.
    realdata_OutputPower_C_Lo, ///< 0: no page reads it.
    /// % of the rated load, 0 to 160; the gauges show `--` beyond. Flow, detail (line A alone),
    /// charts (line A alone), table.
    realdata_OutputLoad_A,
    realdata_OutputLoad_B, ///< Line B. Flow, table.
    realdata_OutputLoad_C, ///< Line C. Flow, table.
    realdata_BypFre,       ///< 0.1 Hz of all lines. Flow, detail, charts, table.
    realdata_BypNumLines,  ///< Lines of the bypass, as realdata_InputNumLines.
    /// V RMS, line A to neutral. Curves end at 400 V. Flow, detail, charts, table.
    realdata_BypVoltage_A,
    realdata_BypVoltage_B, ///< Line B; two curves of chart3. Flow, detail, chart3, table.
    realdata_BypVoltage_C, ///< Line C; no curve, a number. Flow, detail, chart3, table.
    realdata_BypCurrent_A, ///< 0.1 A RMS. Detail, table.
    realdata_BypCurrent_B, ///< Line B.
    realdata_BypCurrent_C, ///< Line C.
    /// W of line A. Detail (as "bypass PF:", line A alone), table.
    realdata_BypPower_A_Hi,
    realdata_BypPower_A_Lo, ///< 0: no page reads it.
    realdata_BypPower_B_Hi, ///< W of line B. Table.
    realdata_BypPower_B_Lo, ///< 0: no page reads it.
    realdata_BypPower_C_Hi, ///< W of line C. Table.
    realdata_BypPower_C_Lo, ///< 0: no page reads it.
    realdata_ConfigIPVol,   ///< Rated input voltage, V. Detail.
    realdata_ConfigIPFre,   ///< Rated input frequency, 0.1 Hz. Detail.
    realdata_ConfigOPVol,   ///< Rated output voltage, V. Detail.
    realdata_ConfigOPFre,   ///< Rated output frequency, 0.1 Hz. Detail.
    /// **Half** the rated apparent power: 1500 is shown as 3000 VA. Detail.
    realdata_ConfigOPVA_Hi,
    realdata_ConfigOPVA_Lo, ///< 0: no page reads it.
    /// Rated active power, W, 1 to 9999999, else `--`. Detail.
    realdata_ConfigOPW_Hi,
    realdata_ConfigOPW_Lo,        ///< 0: no page reads it.
    realdata_ConfigLowBattTime,   ///< min left at which the battery counts as low. No page.
    realdata_ConfigAudibleStatus, ///< Beeper: 1 disabled, 2 enabled, 3 muted. No page.
    realdata_ConfigLowVol,        ///< V below which the unit leaves the mains. No page.
    realdata_ConfigHighVol,       ///< V above which it leaves the mains. No page.
    realdata_Reserve1,            ///< Free for the host. No page.
    realdata_Reserve2,            ///< Free for the host. No page.
    realdata_Reserve3,            ///< Free for the host. No page.
    realdata_Reserve4,            ///< Free for the host. No page.
    realdata_Reserve5,            ///< Free for the host. No page.

    // Alarm states.

    /// "Communication between agent and UPS fault".
    ///
    /// This is the first of the alarm keys, 2000 to 2067. 1: raised, listed with the time at which
    /// the page first saw it so. 0 or missing: cleared. Any other value takes the row off the list
    /// and keeps the time. The quoted text is what *alarms* lists for a key, and **the text counts,
    /// not the name**: from 2020 on they differ, and hosts rely on it. To list "A test is in
    /// progress" a host raises alarm_ShutdownImminent. Keys from 2054 on are never listed.
    alarm_CommunicationsLost = 2000,
    alarm_BatteryBad,             ///< "Battery fault"
    alarm_OnBattery,              ///< "Battery powered"
    alarm_LowBattery,             ///< "Battery low"
    alarm_DepletedBattery,        ///< "Battery EOD"
    alarm_TempBad,                ///< "Temperature overrun MAX-value"
    alarm_InputBad,               ///< "Input fault"
    alarm_OutputBad,              ///< "Output fault"
    alarm_OutputOverload,         ///< "Load overrun MAX-value"
    alarm_OnBypass,               ///< "Bypass powered"
    alarm_BypassBad,              ///< "Bypass fault"
    alarm_OutputOffAsRequested,   ///< "The UPS output has shutdown as requested"
    alarm_UpsOffAsRequested,      ///< "The entire UPS has shutdown as commanded"
    alarm_ChargerFailed,          ///< "Charger subsystem fault"
    alarm_UpsOutputOff,           ///< "The output of the UPS is in the off state"
    alarm_UpsSystemOff,           ///< "The UPS system is in the off state"
    alarm_FanFailure,             ///< "Fan fault"
    alarm_FuseFailure,            ///< "Fuse fault"
    alarm_GeneralFault,           ///< "UPS fault"
    alarm_DiagnosticTestFailed,   ///< "Last diagnostic test failed"
    alarm_TestFailed,             ///< "Communications between the agent and the UPS fault"
    alarm_AwaitingPower,          ///< "UPS shutdown after delay countdown is underway"
    alarm_ShutdownPending,        ///< "The UPS will turn off power to the load"
    alarm_ShutdownImminent,       ///< "A test is in progress"
    alarm_TestInProgress,         ///< Never listed; its onset is kept all the same.
    alarm_RectifierRun,           ///< Never listed; its onset is kept all the same.
    alarm_InverterRun,            ///< "Battery Discharge"
    alarm_BatteryCharge,          ///< "Battery equalization"
    alarm_BatteryBoostCharge,     ///< "Battery switch is off"
    alarm_BatteryFloatCharge,     ///< "Input switch is off"
    alarm_BatterySwitch,          ///< "Output switch is off"
    alarm_InputSwitch,            ///< "Bypass switch is off"
    alarm_OutputSwitch,           ///< Never listed; its onset is kept all the same.
    alarm_BypassSwitch,           ///< Never listed; its onset is kept all the same.
    alarm_UpsType,                ///< "Temperature and humidity module 1 communication lost"
    alarm_KVFLAG,                 ///< "Temperature and humidity module 1 temperature is too high"
    alarm_TH1_CommunicationsLost, ///< "Temperature and humidity module 1 temperature is too low"
    alarm_TH1_Temp_Hi,            ///< "Temperature and humidity module 1 humidity is too high"
    alarm_TH1_Temp_Lo,            ///< "Temperature and humidity module 1 humidity is too low"
    alarm_TH1_Hum_Hi,             ///< "Temperature and humidity module 2 communication lost"
    alarm_TH1_Hum_Lo,             ///< "Temperature and humidity module 2 temperature is too high"
    alarm_TH2_CommunicationsLost, ///< "Temperature and humidity module 2 temperature is too low"
    alarm_TH2_Temp_Hi,            ///< "Temperature and humidity module 2 humidity is too high"
    alarm_TH2_Temp_Lo,            ///< "Temperature and humidity module 2 humidity is too low"
    alarm_TH2_Hum_Hi,             ///< "Temperature and humidity module 3 communication lost"
    alarm_TH2_Hum_Lo,             ///< "Temperature and humidity module 3 temperature is too high"
    alarm_TH3_CommunicationsLost, ///< "Temperature and humidity module 3 temperature is too low"
    alarm_TH3_Temp_Hi,            ///< "Temperature and humidity module 3 humidity is too high"
    alarm_TH3_Temp_Lo,            ///< "Temperature and humidity module 3 humidity is too low"
    alarm_TH3_Hum_Hi,             ///< "Temperature and humidity module 4 communication lost"
    alarm_TH3_Hum_Lo,             ///< "Temperature and humidity module 4 temperature is too high"
    alarm_TH4_CommunicationsLost, ///< "Temperature and humidity module 4 temperature is too low"
    alarm_TH4_Temp_Hi,            ///< "Temperature and humidity module 4 humidity is too high"
    alarm_TH4_Temp_Lo,            ///< "Temperature and humidity module 4 humidity is too low"
    alarm_TH4_Hum_Hi,             ///< Humidity too high, module 4. No page.
    alarm_TH4_Hum_Lo,             ///< Humidity too low, module 4. No page.
    alarm_Smtp_Test,              ///< Test mail. No page.
    alarm_Smtp_Daily_Record,      ///< Daily mail. No page.
    alarm_Sms_Test,               ///< Test message. No page.
    alarm_Sms_Work_Abnormally,    ///< Message modem at fault. No page.
    alarm_Sim_Not_installed,      ///< No SIM card. No page.
    alarm_Sim_Not_registered_network, ///< SIM card without network. No page.
    alarm_Sms_CommunicationsLost,     ///< Message modem silent. No page.
    alarm_No_Get_Dynamic_Domain_Name, ///< No dynamic domain name. No page.
    alarm_BatteryDisconnected,        ///< Battery is not connected. No page.
    alarm_BatteryIdle,                ///< Battery neither charged nor used. No page.
    alarm_OnInput,                    ///< Load is on the input. No page.
    alarm_cloud_connect_falil,        ///< No connection to the cloud. No page.

    // Device information: text, shown plain; white space in it is simplified on the detail page.
    info_ups_type = 4000, ///< Model. Flow, detail.
    info_copo_name,       ///< Manufacturer. Flow, detail.
    info_quenta_name,     ///< Name the device or its agent has. Flow, detail.
    info_ups_description, ///< What is attached to the UPS. Detail.
    info_ups_soft_ver,    ///< Firmware of the UPS. Detail.
    info_quenta_soft_ver, ///< Firmware of its agent. Detail.
    info_quenta_location, ///< Where it stands. Detail.
    info_polltype,        ///< How it is polled. No page.
    info_bypnum,          ///< Lines of the bypass as the device counts them. No page.
    info_innum,           ///< Lines of the input as the device counts them. No page.
    info_outnum,          ///< Lines of the output as the device counts them. No page.
    info_alanum,          ///< Alarms as the device counts them. No page.
    info_state,           ///< The host's state of the link. No page.
    info_failCount,       ///< Polls that failed. No page.
    info_ipAddr,          ///< Address. No page.
};

#endif // GLOBALVAR_H
