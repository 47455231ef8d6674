<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ChartForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
</context>
<context>
    <name>ChildForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>EnergyLine</source>
        <translation>能量流</translation>
    </message>
    <message>
        <source>RT-Alarm</source>
        <translation>实时告警</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>控制</translation>
    </message>
</context>
<context>
    <name>Energyline</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>耗尽</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>其他供电</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>无供电</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>市电供电</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>升压供电</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>降压供电</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>自检</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>均充</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>浮充</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>放电</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>负载</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>整流器</translation>
    </message>
    <message>
        <source>INV</source>
        <translation>逆变器</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>Voltage:</source>
        <translation>电压:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>频率:</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>电流:</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>UPS</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>型号:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <source>Manufacturer:</source>
        <translation>制造商:</translation>
    </message>
    <message>
        <source>Active power:</source>
        <translation>有功功率:</translation>
    </message>
    <message>
        <source>Load percent:</source>
        <translation>负载率:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态:</translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>温度:</translation>
    </message>
    <message>
        <source>Remain time:</source>
        <translation>剩余时间:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>容量:</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RTDataForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Real-time information interface</source>
        <translation>实时信息界面</translation>
    </message>
    <message>
        <source>Battery Info</source>
        <translation>电池信息</translation>
    </message>
    <message>
        <source>Input Info</source>
        <translation>输入信息</translation>
    </message>
    <message>
        <source>Output Info</source>
        <translation>输出信息</translation>
    </message>
    <message>
        <source>Bypass Info</source>
        <translation>旁路信息</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>耗尽</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>其他供电</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>无供电</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>市电供电</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>升压供电</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>降压供电</translation>
    </message>
    <message>
        <source>Battery state</source>
        <translation>电池状态</translation>
    </message>
    <message>
        <source>Time on battery(s)</source>
        <translation>电池供电时间(s)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>电池剩余时间(Min)</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>电池剩余容量(%)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>电池电压(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>电池电流(A)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>电池温度(C)</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>市电故障次数</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>输入电压(V)</translation>
    </message>
    <message>
        <source>Input current(A)</source>
        <translation>输入电流(A)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>输入频率(Hz)</translation>
    </message>
    <message>
        <source>Input power(W)</source>
        <translation>输入功率(W)</translation>
    </message>
    <message>
        <source>Output mode</source>
        <translation>输出模式</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>输出频率(Hz)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>输出电压(V)</translation>
    </message>
    <message>
        <source>Output current(A)</source>
        <translation>输出电流(A)</translation>
    </message>
    <message>
        <source>Output power(W)</source>
        <translation>输出功率(W)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>输出负载(%)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>旁路频率(Hz)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>旁路电压(V)</translation>
    </message>
    <message>
        <source>Bypass current(A)</source>
        <translation>旁路电流(A)</translation>
    </message>
    <message>
        <source>Bypass power(W)</source>
        <translation>旁路功率(W)</translation>
    </message>
    <message>
        <source>Input voltage R/S/T(V)</source>
        <translation>输入电压 R/S/T(V)</translation>
    </message>
    <message>
        <source>Input current R/S/T(A)</source>
        <translation>输入电流 R/S/T(A)</translation>
    </message>
    <message>
        <source>Input frequency R/S/T(Hz)</source>
        <translation>输入频率 R/S/T(Hz)</translation>
    </message>
    <message>
        <source>Input power R/S/T(W)</source>
        <translation>输入功率 R/S/T(W)</translation>
    </message>
    <message>
        <source>Output voltage R/S/T(V)</source>
        <translation>输出电压 R/S/T(V)</translation>
    </message>
    <message>
        <source>Output current R/S/T(A)</source>
        <translation>输出电流 R/S/T(A)</translation>
    </message>
    <message>
        <source>Output power R/S/T(W)</source>
        <translation>输出功率 R/S/T(W)</translation>
    </message>
    <message>
        <source>Output load R/S/T(%)</source>
        <translation>输出负载 R/S/T(%)</translation>
    </message>
    <message>
        <source>Bypass voltage R/S/T(V)</source>
        <translation>旁路电压 R/S/T(V)</translation>
    </message>
    <message>
        <source>Bypass current R/S/T(A)</source>
        <translation>旁路电流 R/S/T(A)</translation>
    </message>
    <message>
        <source>Bypass power R/S/T(W)</source>
        <translation>旁路功率 R/S/T(W)</translation>
    </message>
    <message>
        <source>Real-time Info</source>
        <translation>实时信息</translation>
    </message>
</context>
<context>
    <name>RTEventForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Communication between agent and UPS fault</source>
        <translation>代理与 UPS 通信故障</translation>
    </message>
    <message>
        <source>Communications between agent and UPS normal</source>
        <translation>代理与 UPS 通信正常</translation>
    </message>
    <message>
        <source>Battery fault</source>
        <translation>电池故障</translation>
    </message>
    <message>
        <source>Battery normal</source>
        <translation>电池正常</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Utility supply normal</source>
        <translation>市电供电正常</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>电池电量低</translation>
    </message>
    <message>
        <source>Battery voltage normal</source>
        <translation>电池电压正常</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>电池放电终止</translation>
    </message>
    <message>
        <source>Battery resume</source>
        <translation>电池恢复</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>温度超过上限</translation>
    </message>
    <message>
        <source>Temperature normal</source>
        <translation>温度正常</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>输入故障</translation>
    </message>
    <message>
        <source>Input normal</source>
        <translation>输入正常</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>输出故障</translation>
    </message>
    <message>
        <source>Output normal</source>
        <translation>输出正常</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>负载超过上限</translation>
    </message>
    <message>
        <source>The output load normal</source>
        <translation>输出负载正常</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Inverter operation</source>
        <translation>逆变器运行</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>旁路故障</translation>
    </message>
    <message>
        <source>Bypass normal</source>
        <translation>旁路正常</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>UPS 输出已按请求关闭</translation>
    </message>
    <message>
        <source>The UPS output not shutdown as requested</source>
        <translation>UPS 输出未按请求关闭</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>整台 UPS 已按命令关机</translation>
    </message>
    <message>
        <source>The entire UPS not shutdown as commanded</source>
        <translation>整台 UPS 未按命令关机</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>充电器故障</translation>
    </message>
    <message>
        <source>Charger subsystem normal</source>
        <translation>充电器正常</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>UPS 输出处于关闭状态</translation>
    </message>
    <message>
        <source>UPS output on</source>
        <translation>UPS 输出开启</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>UPS 系统处于关闭状态</translation>
    </message>
    <message>
        <source>UPS on</source>
        <translation>UPS 开启</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>风扇故障</translation>
    </message>
    <message>
        <source>Fan normal</source>
        <translation>风扇正常</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>熔断器故障</translation>
    </message>
    <message>
        <source>Fuse normal</source>
        <translation>熔断器正常</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>UPS 故障</translation>
    </message>
    <message>
        <source>UPS normal</source>
        <translation>UPS 正常</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>上次诊断测试失败</translation>
    </message>
    <message>
        <source>Last diagnostic test success</source>
        <translation>上次诊断测试成功</translation>
    </message>
    <message>
        <source>Communications between the agent and the UPS fault</source>
        <translation>代理与 UPS 之间通信故障</translation>
    </message>
    <message>
        <source>UPS is not awaiting the return of input power</source>
        <translation>UPS 不在等待输入电源恢复</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>UPS 延时关机倒计时进行中</translation>
    </message>
    <message>
        <source>UPS shutdown after delay ended</source>
        <translation>UPS 延时关机倒计时结束</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>UPS 将切断负载供电</translation>
    </message>
    <message>
        <source>The UPS will not turn off power to the load</source>
        <translation>UPS 不会切断负载供电</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>测试进行中</translation>
    </message>
    <message>
        <source>No a test is in progress</source>
        <translation>无测试进行</translation>
    </message>
    <message>
        <source>Battery Discharge</source>
        <translation>电池放电</translation>
    </message>
    <message>
        <source>Battery equalization</source>
        <translation>电池均充</translation>
    </message>
    <message>
        <source>Battery switch is off</source>
        <translation>电池开关断开</translation>
    </message>
    <message>
        <source>Battery switch on</source>
        <translation>电池开关闭合</translation>
    </message>
    <message>
        <source>Input switch is off</source>
        <translation>输入开关断开</translation>
    </message>
    <message>
        <source>Input switch on</source>
        <translation>输入开关闭合</translation>
    </message>
    <message>
        <source>Output switch is off</source>
        <translation>输出开关断开</translation>
    </message>
    <message>
        <source>Output switch is on</source>
        <translation>输出开关闭合</translation>
    </message>
    <message>
        <source>Bypass switch is off</source>
        <translation>旁路开关断开</translation>
    </message>
    <message>
        <source>Bypass switch is on</source>
        <translation>旁路开关闭合</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication lost</source>
        <translation>温湿度模块 1 通信中断</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication normal</source>
        <translation>温湿度模块 1 通信正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too high</source>
        <translation>温湿度模块 1 温度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is normal</source>
        <translation>温湿度模块 1 温度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too low</source>
        <translation>温湿度模块 1 温度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too high</source>
        <translation>温湿度模块 1 湿度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is normal</source>
        <translation>温湿度模块 1 湿度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too low</source>
        <translation>温湿度模块 1 湿度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication lost</source>
        <translation>温湿度模块 2 通信中断</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication normal</source>
        <translation>温湿度模块 2 通信正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too high</source>
        <translation>温湿度模块 2 温度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature normal</source>
        <translation>温湿度模块 2 温度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too low</source>
        <translation>温湿度模块 2 温度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too high</source>
        <translation>温湿度模块 2 湿度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is normal</source>
        <translation>温湿度模块 2 湿度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too low</source>
        <translation>温湿度模块 2 湿度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication lost</source>
        <translation>温湿度模块 3 通信中断</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication normal</source>
        <translation>温湿度模块 3 通信正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too high</source>
        <translation>温湿度模块 3 温度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is normal</source>
        <translation>温湿度模块 3 温度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too low</source>
        <translation>温湿度模块 3 温度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too high</source>
        <translation>温湿度模块 3 湿度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is normal</source>
        <translation>温湿度模块 3 湿度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too low</source>
        <translation>温湿度模块 3 湿度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication lost</source>
        <translation>温湿度模块 4 通信中断</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication normal</source>
        <translation>温湿度模块 4 通信正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too high</source>
        <translation>温湿度模块 4 温度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is normal</source>
        <translation>温湿度模块 4 温度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too low</source>
        <translation>温湿度模块 4 温度过低</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too high</source>
        <translation>温湿度模块 4 湿度过高</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is normal</source>
        <translation>温湿度模块 4 湿度正常</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too low</source>
        <translation>温湿度模块 4 湿度过低</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Data/Time</source>
        <translation>日期/时间</translation>
    </message>
    <message>
        <source>Event description</source>
        <translation>事件描述</translation>
    </message>
</context>
<context>
    <name>RTSingleGraphForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Real chart information interface</source>
        <translation>实时图表界面</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Table Display</source>
        <translation>单相 UPS 数据表显示</translation>
    </message>
    <message>
        <source>Battery Capacity</source>
        <translation>电池容量</translation>
    </message>
    <message>
        <source>Output Load</source>
        <translation>输出负载</translation>
    </message>
    <message>
        <source>Battery Temperature</source>
        <translation>电池温度</translation>
    </message>
    <message>
        <source>Battery Voltage(V)</source>
        <translation>电池电压(V)</translation>
    </message>
    <message>
        <source>Battery Current(A)</source>
        <translation>电池电流(A)</translation>
    </message>
    <message>
        <source>Bypass Voltage(V)</source>
        <translation>旁路电压(V)</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Graphic Display</source>
        <translation>单相 UPS 数据图形显示</translation>
    </message>
    <message>
        <source>Input Voltage(V)</source>
        <translation>输入电压(V)</translation>
    </message>
    <message>
        <source>(0)</source>
        <translation>(0)</translation>
    </message>
    <message>
        <source>Output Voltage(V)</source>
        <translation>输出电压(V)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>电池剩余时间(Min)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>输出负载(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>电池温度(C)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>输入频率(Hz)</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>输出频率(Hz)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>旁路频率(Hz)</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>输入电压(V)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>输出电压(V)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>电池电压(V)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>旁路电压(V)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>当前值:</translation>
    </message>
</context>
<context>
    <name>RTThreeGraphForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Table Display</source>
        <translation>三相 UPS 数据表显示</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>电池剩余容量(%)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>输出负载(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>电池温度(C)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>电池电压(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>电池电流(A)</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Graphic Display</source>
        <translation>三相 UPS 数据图形显示</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>Voltage R(V)</source>
        <translation>电压 R(V)</translation>
    </message>
    <message>
        <source>Voltage S(V)</source>
        <translation>电压 S(V)</translation>
    </message>
    <message>
        <source>Voltage T(V)</source>
        <translation>电压 T(V)</translation>
    </message>
    <message>
        <source>Frequency R(Hz)</source>
        <translation>频率 R(Hz)</translation>
    </message>
    <message>
        <source>Frequency S(Hz)</source>
        <translation>频率 S(Hz)</translation>
    </message>
    <message>
        <source>Frequency T(Hz)</source>
        <translation>频率 T(Hz)</translation>
    </message>
    <message>
        <source>Frequency(Hz)</source>
        <translation>频率(Hz)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>当前值:</translation>
    </message>
</context>
<context>
    <name>RateInfoForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>VA</source>
        <translation>VA</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>耗尽</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>自检</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>均充</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>浮充</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>放电</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Other Supply</source>
        <translation>其他供电</translation>
    </message>
    <message>
        <source>None Supply</source>
        <translation>无供电</translation>
    </message>
    <message>
        <source>Utility Supply</source>
        <translation>市电供电</translation>
    </message>
    <message>
        <source>Bypass Supply</source>
        <translation>旁路供电</translation>
    </message>
    <message>
        <source>Battery Supply</source>
        <translation>电池供电</translation>
    </message>
    <message>
        <source>Booster Supply</source>
        <translation>升压供电</translation>
    </message>
    <message>
        <source>Reducer Supply</source>
        <translation>降压供电</translation>
    </message>
    <message>
        <source>UPS model</source>
        <translation>UPS 型号</translation>
    </message>
    <message>
        <source>Manufacturer name</source>
        <translation>制造商名称</translation>
    </message>
    <message>
        <source>System name</source>
        <translation>系统名称</translation>
    </message>
    <message>
        <source>UPS ident attached devices</source>
        <translation>UPS 所接设备</translation>
    </message>
    <message>
        <source>UPS software version</source>
        <translation>UPS 软件版本</translation>
    </message>
    <message>
        <source>Agent software version</source>
        <translation>代理软件版本</translation>
    </message>
    <message>
        <source>Agent location</source>
        <translation>代理位置</translation>
    </message>
    <message>
        <source>battery voltage:</source>
        <translation>电池电压:</translation>
    </message>
    <message>
        <source>battery current:</source>
        <translation>电池电流:</translation>
    </message>
    <message>
        <source>battery temperature:</source>
        <translation>电池温度:</translation>
    </message>
    <message>
        <source>remain discharge time:</source>
        <translation>剩余放电时间:</translation>
    </message>
    <message>
        <source>Time on battery:</source>
        <translation>电池供电时间:</translation>
    </message>
    <message>
        <source>battery capacity:</source>
        <translation>电池容量:</translation>
    </message>
    <message>
        <source>battery state:</source>
        <translation>电池状态:</translation>
    </message>
    <message>
        <source>input voltage:</source>
        <translation>输入电压:</translation>
    </message>
    <message>
        <source>input current:</source>
        <translation>输入电流:</translation>
    </message>
    <message>
        <source>input frequency:</source>
        <translation>输入频率:</translation>
    </message>
    <message>
        <source>input PF:</source>
        <translation>输入功率因数:</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>市电故障次数</translation>
    </message>
    <message>
        <source>output voltage:</source>
        <translation>输出电压:</translation>
    </message>
    <message>
        <source>output current:</source>
        <translation>输出电流:</translation>
    </message>
    <message>
        <source>output frequency:</source>
        <translation>输出频率:</translation>
    </message>
    <message>
        <source>output power:</source>
        <translation>输出功率:</translation>
    </message>
    <message>
        <source>output load percentage:</source>
        <translation>输出负载百分比:</translation>
    </message>
    <message>
        <source>Output Mode:</source>
        <translation>输出模式:</translation>
    </message>
    <message>
        <source>bypass voltage:</source>
        <translation>旁路电压:</translation>
    </message>
    <message>
        <source>bypass current:</source>
        <translation>旁路电流:</translation>
    </message>
    <message>
        <source>bypass PF:</source>
        <translation>旁路功率因数:</translation>
    </message>
    <message>
        <source>bypass frequency:</source>
        <translation>旁路频率:</translation>
    </message>
    <message>
        <source>Rated input voltage</source>
        <translation>额定输入电压</translation>
    </message>
    <message>
        <source>Rated input frequency</source>
        <translation>额定输入频率</translation>
    </message>
    <message>
        <source>Rated output voltage</source>
        <translation>额定输出电压</translation>
    </message>
    <message>
        <source>Rated output frequency</source>
        <translation>额定输出频率</translation>
    </message>
    <message>
        <source>Rated active power</source>
        <translation>额定有功功率</translation>
    </message>
    <message>
        <source>Rated apparent power</source>
        <translation>额定视在功率</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>电池</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>旁路</translation>
    </message>
    <message>
        <source>RATE</source>
        <translation>额定值</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SetInfoForm</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Device test</source>
        <translation>设备测试</translation>
    </message>
    <message>
        <source>UPS Self-test for 10 seconds</source>
        <translation>UPS 自检 10 秒</translation>
    </message>
    <message>
        <source>UPS Discharge test to low voltage</source>
        <translation>UPS 放电测试至低电压</translation>
    </message>
    <message>
        <source>Cancel the UPS test</source>
        <translation>取消 UPS 测试</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Shut down setting</source>
        <translation>关机设置</translation>
    </message>
    <message>
        <source>UPS shutdown</source>
        <translation>UPS 关机</translation>
    </message>
    <message>
        <source>UPS to standby</source>
        <translation>UPS 待机</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>UPS will wake up from standby state</source>
        <translation>UPS 从待机状态唤醒</translation>
    </message>
    <message>
        <source>Restart the UPS</source>
        <translation>重启 UPS</translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Curve %1</source>
        <translation>曲线 %1</translation>
    </message>
</context>
<context>
    <name>TrendLegend</name>
    <message>
        <source>Left scale:</source>
        <translation>左侧刻度:</translation>
    </message>
    <message>
        <source>Right scale:</source>
        <translation>右侧刻度:</translation>
    </message>
</context>
</TS>
