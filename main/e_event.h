#ifndef E_EVENT_H
#define E_EVENT_H

// Event codes that travel between host and views as plain int (first argument of postDEvent).
// May touch: nothing. The numbers and spellings are the host contract; never change one.

/// \file
/// The event codes: what a view asks its host to do.

/// First argument of CollectView::postDEvent(), as plain `int`, and again `"controlId"` in its map.
///
/// The library posts **six codes and no other**, all from the control page (SetInfoForm):
/// eEvent_Control_selfTest, eEvent_Control_disChargeToLow, eEvent_Control_cancelTest,
/// eEvent_Control_shutdownUps, eEvent_Control_openUps and eEvent_Control_wakeupUps. It handles
/// none: what a command came to is the host's to find out and to show. All other codes are for
/// hosts, which use them between their own parts for what is said here; a host that gets a code it
/// does not know should refuse it.
enum CorvelEvent : int {
    eEvent_add_dev = 1000,         ///< Host: watch a further device.
    eEvent_Control_cleanFault,     ///< Host: clear the device's faults.
    eEvent_Control_cleanHistory,   ///< Host: clear the device's history.
    eEvent_Control_selfTest,       ///< **Posted**: test the UPS for 10 seconds. No value.
    eEvent_Control_disCharge,      ///< Host: discharge the battery for a while.
    eEvent_Control_disChargeToLow, ///< **Posted**: discharge the battery until it is low. No value.
    eEvent_Control_cancelTest,     ///< **Posted**: end the test that is under way. No value.
    eEvent_Control_shutdownUps,    ///< **Posted**: shut down. Value "12", always.
    /// **Posted** for two commands that the value alone tells apart: "1" restarts the UPS; anything
    /// else sends it to standby and is the minutes, "0" to "99999999" or empty, unchecked. One
    /// minute of standby cannot be asked for: it reads as a restart.
    eEvent_Control_openUps,
    eEvent_Control_BuzzerSwitchOn,  ///< Host: let the beeper sound.
    eEvent_Control_BuzzerSwitchOff, ///< Host: keep the beeper silent.
    eEvent_Control_timeSet,         ///< Host: set the device's clock.
    eEvent_Control_StandByUps,      ///< Host: standby; the control page posts openUps instead.
    eEvent_Control_wakeupUps,       ///< **Posted**: wake up from standby. No value.
    eEvent_Control_BuzzerSwitch,    ///< Host: switch the beeper over.
    eEvent_Control_offTurnBypass,   ///< Host: leave the bypass.
    eEvent_Control_turnBypass,      ///< Host: go to bypass.
    eEvent_Control_turnInverter,    ///< Host: go to the inverter.
    eEvent_Control_upgrade,         ///< Host: renew the firmware.
    eEvent_Schdule_shutdownUps,     ///< Host: shut down at a planned time.
    eEvent_Schdule_openUps,         ///< Host: switch on at a planned time.
    eEvent_Schdule_selfTest,        ///< Host: test at a planned time.
    eEvent_Schdule_disCharge,       ///< Host: discharge at a planned time.
    eEvent_Schdule_disChargeToLow,  ///< Host: discharge until low at a planned time.
    eEvent_del_dev,                 ///< Host: watch a device no longer.
    eEvent_modify_dev,              ///< Host: a device's settings have changed.
    eEvent_sendTestMail,            ///< Host: send a mail on trial.
    eEvent_sendTestSms,             ///< Host: send a text message on trial.
    eEvent_sendTestDail,            ///< Host: call a number on trial.
    eEvent_sendControlCmd,          ///< Host: send a command of its own.
    eEvent_del_dataLog,             ///< Host: empty the log of values.
    eEvent_del_smsLog,              ///< Host: empty the log of text messages.
    eEvent_setSmsConfig,            ///< Host: change the settings of text messages.
    eEvent_setDataProcessConfig,    ///< Host: change the settings of what is stored.
    eEvent_add_area,                ///< Host: a further area of devices.
    eEvent_del_area,                ///< Host: an area of devices less.
    eEvent_modify_area,             ///< Host: an area of devices has changed.
    eEvent_mail_error,              ///< Host: a mail could not be sent.
    eEvent_sms_error,               ///< Host: a text message could not be sent.
    eEvent_shutdown_PC,             ///< Host: shut this computer down.
    eEvent_dev_online,              ///< Host: a device answers.
    eEvent_dev_offline,             ///< Host: a device does not answer.
    eEvent_control_result,          ///< Host: what a command came to.
    eEvent_remote_shutdown,         ///< Host: shut another computer down.
    eEvent_control_remote_shutdown, ///< Host: command another computer's shutdown.

    eEvent_smsInfo = 2000,       ///< Host: a text message came in.
    eEvent_dev_state_change,     ///< Host: a device's state has changed.
    eEvent_change_dev_config,    ///< Host: change a device's settings.
    eEvent_get_dataLog,          ///< Host: read the log of values.
    eEvent_get_eventLog,         ///< Host: read the log of events.
    eEvent_get_smsLog,           ///< Host: read the log of text messages.
    eEvent_new_alarm,            ///< Host: an alarm was raised.
    eEvent_dev_real_data,        ///< Host: a device's live values.
    eEvent_dev_data,             ///< Host: a device's data.
    eEvent_mainsFail,            ///< Host: the mains have failed.
    eEvent_batteryLow,           ///< Host: a battery is low.
    eEvent_schdule_shutdown,     ///< Host: a planned shutdown is due.
    eEvent_debugLog,             ///< Host: a line for whoever looks for a fault.
    eEvent_change_snmp_config,   ///< Host: change the settings of SNMP.
    eEvent_popMessage,           ///< Host: show a message.
    eEvent_change_serial_config, ///< Host: change the settings of a serial line.
    eEvent_costom_control,       ///< Host: a command the operator defined.
    eEvent_del_eventLog,         ///< Host: empty the log of events.
    eEvent_searchLocal,          ///< Host: look for devices at this computer.
    eEvent_searchUdp,            ///< Host: look for devices on the network.
    eEvent_setNetIpaddr,         ///< Host: set an agent's address.
    eEvent_FactoryReset,         ///< Host: reset an agent to its factory settings.
    eEvent_SetMac,               ///< Host: set an agent's hardware address.
    eEvent_SetSerialNo,          ///< Host: set an agent's serial number.
    eEvent_searchProgress,       ///< Host: how far a search is.
    eEvent_searchResult,         ///< Host: what a search has found.
};

#endif // E_EVENT_H
