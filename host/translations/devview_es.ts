<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
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
        <translation>Detalle</translation>
    </message>
    <message>
        <source>EnergyLine</source>
        <translation>Flujo de energía</translation>
    </message>
    <message>
        <source>RT-Alarm</source>
        <translation>Alarmas</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
</context>
<context>
    <name>Energyline</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Agotada</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Otra fuente</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Sin fuente</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Red elevada</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Red reducida</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Ecualización</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Flotación</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>ENTRADA</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>LOAD</source>
        <translation>CARGA</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>REC</translation>
    </message>
    <message>
        <source>INV</source>
        <translation>INV</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATERÍA</translation>
    </message>
    <message>
        <source>Voltage:</source>
        <translation>Tensión:</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frecuencia:</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Corriente:</translation>
    </message>
    <message>
        <source>UPS</source>
        <translation>SAI</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Manufacturer:</source>
        <translation>Fabricante:</translation>
    </message>
    <message>
        <source>Active power:</source>
        <translation>Pot. activa:</translation>
    </message>
    <message>
        <source>Load percent:</source>
        <translation>Carga:</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Temperature:</source>
        <translation>Temperatura:</translation>
    </message>
    <message>
        <source>Remain time:</source>
        <translation>Autonomía:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacidad:</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Datos en tiempo real</translation>
    </message>
    <message>
        <source>Battery Info</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Input Info</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output Info</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Bypass Info</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Agotada</translation>
    </message>
    <message>
        <source>Other supply</source>
        <translation>Otra fuente</translation>
    </message>
    <message>
        <source>None supply</source>
        <translation>Sin fuente</translation>
    </message>
    <message>
        <source>Utility supply</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Bypass supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery supply</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Booster supply</source>
        <translation>Red elevada</translation>
    </message>
    <message>
        <source>Reducer supply</source>
        <translation>Red reducida</translation>
    </message>
    <message>
        <source>Battery state</source>
        <translation>Estado de la batería</translation>
    </message>
    <message>
        <source>Time on battery(s)</source>
        <translation>Tiempo en batería(s)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Autonomía restante(Min)</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Capacidad restante(%)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tensión de batería(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Corriente de batería(A)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Temperatura de batería(C)</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Número de fallos de red</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Tensión de entrada(V)</translation>
    </message>
    <message>
        <source>Input current(A)</source>
        <translation>Corriente de entrada(A)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Frecuencia de entrada(Hz)</translation>
    </message>
    <message>
        <source>Input power(W)</source>
        <translation>Potencia de entrada(W)</translation>
    </message>
    <message>
        <source>Output mode</source>
        <translation>Modo de salida</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Frecuencia de salida(Hz)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Tensión de salida(V)</translation>
    </message>
    <message>
        <source>Output current(A)</source>
        <translation>Corriente de salida(A)</translation>
    </message>
    <message>
        <source>Output power(W)</source>
        <translation>Potencia de salida(W)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Carga de salida(%)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Frecuencia de bypass(Hz)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Tensión de bypass(V)</translation>
    </message>
    <message>
        <source>Bypass current(A)</source>
        <translation>Corriente de bypass(A)</translation>
    </message>
    <message>
        <source>Bypass power(W)</source>
        <translation>Potencia de bypass(W)</translation>
    </message>
    <message>
        <source>Input voltage R/S/T(V)</source>
        <translation>Tensión de entrada R/S/T(V)</translation>
    </message>
    <message>
        <source>Input current R/S/T(A)</source>
        <translation>Corriente de entrada R/S/T(A)</translation>
    </message>
    <message>
        <source>Input frequency R/S/T(Hz)</source>
        <translation>Frecuencia de entrada R/S/T(Hz)</translation>
    </message>
    <message>
        <source>Input power R/S/T(W)</source>
        <translation>Potencia de entrada R/S/T(W)</translation>
    </message>
    <message>
        <source>Output voltage R/S/T(V)</source>
        <translation>Tensión de salida R/S/T(V)</translation>
    </message>
    <message>
        <source>Output current R/S/T(A)</source>
        <translation>Corriente de salida R/S/T(A)</translation>
    </message>
    <message>
        <source>Output power R/S/T(W)</source>
        <translation>Potencia de salida R/S/T(W)</translation>
    </message>
    <message>
        <source>Output load R/S/T(%)</source>
        <translation>Carga de salida R/S/T(%)</translation>
    </message>
    <message>
        <source>Bypass voltage R/S/T(V)</source>
        <translation>Tensión de bypass R/S/T(V)</translation>
    </message>
    <message>
        <source>Bypass current R/S/T(A)</source>
        <translation>Corriente de bypass R/S/T(A)</translation>
    </message>
    <message>
        <source>Bypass power R/S/T(W)</source>
        <translation>Potencia de bypass R/S/T(W)</translation>
    </message>
    <message>
        <source>Real-time Info</source>
        <translation>Tiempo real</translation>
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
        <translation>Fallo de comunicación entre el agente y el SAI</translation>
    </message>
    <message>
        <source>Communications between agent and UPS normal</source>
        <translation>Comunicación entre el agente y el SAI normal</translation>
    </message>
    <message>
        <source>Battery fault</source>
        <translation>Fallo de batería</translation>
    </message>
    <message>
        <source>Battery normal</source>
        <translation>Batería normal</translation>
    </message>
    <message>
        <source>Battery powered</source>
        <translation>Alimentación por batería</translation>
    </message>
    <message>
        <source>Utility supply normal</source>
        <translation>Alimentación de red normal</translation>
    </message>
    <message>
        <source>Battery low</source>
        <translation>Batería baja</translation>
    </message>
    <message>
        <source>Battery voltage normal</source>
        <translation>Tensión de batería normal</translation>
    </message>
    <message>
        <source>Battery EOD</source>
        <translation>Batería agotada</translation>
    </message>
    <message>
        <source>Battery resume</source>
        <translation>Batería recuperada</translation>
    </message>
    <message>
        <source>Temperature overrun MAX-value</source>
        <translation>Temperatura por encima del máximo</translation>
    </message>
    <message>
        <source>Temperature normal</source>
        <translation>Temperatura normal</translation>
    </message>
    <message>
        <source>Input fault</source>
        <translation>Fallo de entrada</translation>
    </message>
    <message>
        <source>Input normal</source>
        <translation>Entrada normal</translation>
    </message>
    <message>
        <source>Output fault</source>
        <translation>Fallo de salida</translation>
    </message>
    <message>
        <source>Output normal</source>
        <translation>Salida normal</translation>
    </message>
    <message>
        <source>Load overrun MAX-value</source>
        <translation>Carga por encima del máximo</translation>
    </message>
    <message>
        <source>The output load normal</source>
        <translation>Carga de salida normal</translation>
    </message>
    <message>
        <source>Bypass powered</source>
        <translation>Alimentación por bypass</translation>
    </message>
    <message>
        <source>Inverter operation</source>
        <translation>Funcionamiento con inversor</translation>
    </message>
    <message>
        <source>Bypass fault</source>
        <translation>Fallo de bypass</translation>
    </message>
    <message>
        <source>Bypass normal</source>
        <translation>Bypass normal</translation>
    </message>
    <message>
        <source>The UPS output has shutdown as requested</source>
        <translation>La salida del SAI se ha apagado como se pidió</translation>
    </message>
    <message>
        <source>The UPS output not shutdown as requested</source>
        <translation>La salida del SAI no se ha apagado como se pidió</translation>
    </message>
    <message>
        <source>The entire UPS has shutdown as commanded</source>
        <translation>El SAI completo se ha apagado como se ordenó</translation>
    </message>
    <message>
        <source>The entire UPS not shutdown as commanded</source>
        <translation>El SAI completo no se ha apagado como se ordenó</translation>
    </message>
    <message>
        <source>Charger subsystem fault</source>
        <translation>Fallo del cargador</translation>
    </message>
    <message>
        <source>Charger subsystem normal</source>
        <translation>Cargador normal</translation>
    </message>
    <message>
        <source>The output of the UPS is in the off state</source>
        <translation>La salida del SAI está apagada</translation>
    </message>
    <message>
        <source>UPS output on</source>
        <translation>Salida del SAI encendida</translation>
    </message>
    <message>
        <source>The UPS system is in the off state</source>
        <translation>El SAI está apagado</translation>
    </message>
    <message>
        <source>UPS on</source>
        <translation>SAI encendido</translation>
    </message>
    <message>
        <source>Fan fault</source>
        <translation>Fallo de ventilador</translation>
    </message>
    <message>
        <source>Fan normal</source>
        <translation>Ventilador normal</translation>
    </message>
    <message>
        <source>Fuse fault</source>
        <translation>Fallo de fusible</translation>
    </message>
    <message>
        <source>Fuse normal</source>
        <translation>Fusible normal</translation>
    </message>
    <message>
        <source>UPS fault</source>
        <translation>Fallo del SAI</translation>
    </message>
    <message>
        <source>UPS normal</source>
        <translation>SAI normal</translation>
    </message>
    <message>
        <source>Last diagnostic test failed</source>
        <translation>Último test de diagnóstico fallido</translation>
    </message>
    <message>
        <source>Last diagnostic test success</source>
        <translation>Último test de diagnóstico correcto</translation>
    </message>
    <message>
        <source>Communications between the agent and the UPS fault</source>
        <translation>Fallo de comunicación entre el agente y el SAI</translation>
    </message>
    <message>
        <source>UPS is not awaiting the return of input power</source>
        <translation>El SAI no espera el retorno de la alimentación de entrada</translation>
    </message>
    <message>
        <source>UPS shutdown after delay countdown is underway</source>
        <translation>Cuenta atrás de apagado del SAI en curso</translation>
    </message>
    <message>
        <source>UPS shutdown after delay ended</source>
        <translation>Cuenta atrás de apagado del SAI terminada</translation>
    </message>
    <message>
        <source>The UPS will turn off power to the load</source>
        <translation>El SAI cortará la alimentación de la carga</translation>
    </message>
    <message>
        <source>The UPS will not turn off power to the load</source>
        <translation>El SAI no cortará la alimentación de la carga</translation>
    </message>
    <message>
        <source>A test is in progress</source>
        <translation>Hay un test en curso</translation>
    </message>
    <message>
        <source>No a test is in progress</source>
        <translation>No hay ningún test en curso</translation>
    </message>
    <message>
        <source>Battery Discharge</source>
        <translation>Descarga de la batería</translation>
    </message>
    <message>
        <source>Battery equalization</source>
        <translation>Ecualización de la batería</translation>
    </message>
    <message>
        <source>Battery switch is off</source>
        <translation>Interruptor de batería abierto</translation>
    </message>
    <message>
        <source>Battery switch on</source>
        <translation>Interruptor de batería cerrado</translation>
    </message>
    <message>
        <source>Input switch is off</source>
        <translation>Interruptor de entrada abierto</translation>
    </message>
    <message>
        <source>Input switch on</source>
        <translation>Interruptor de entrada cerrado</translation>
    </message>
    <message>
        <source>Output switch is off</source>
        <translation>Interruptor de salida abierto</translation>
    </message>
    <message>
        <source>Output switch is on</source>
        <translation>Interruptor de salida cerrado</translation>
    </message>
    <message>
        <source>Bypass switch is off</source>
        <translation>Interruptor de bypass abierto</translation>
    </message>
    <message>
        <source>Bypass switch is on</source>
        <translation>Interruptor de bypass cerrado</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication lost</source>
        <translation>Módulo de temperatura y humedad 1: comunicación perdida</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 communication normal</source>
        <translation>Módulo de temperatura y humedad 1: comunicación normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too high</source>
        <translation>Módulo de temperatura y humedad 1: temperatura demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is normal</source>
        <translation>Módulo de temperatura y humedad 1: temperatura normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 temperature is too low</source>
        <translation>Módulo de temperatura y humedad 1: temperatura demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too high</source>
        <translation>Módulo de temperatura y humedad 1: humedad demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is normal</source>
        <translation>Módulo de temperatura y humedad 1: humedad normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 1 humidity is too low</source>
        <translation>Módulo de temperatura y humedad 1: humedad demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication lost</source>
        <translation>Módulo de temperatura y humedad 2: comunicación perdida</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 communication normal</source>
        <translation>Módulo de temperatura y humedad 2: comunicación normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too high</source>
        <translation>Módulo de temperatura y humedad 2: temperatura demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature normal</source>
        <translation>Módulo de temperatura y humedad 2: temperatura normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 temperature is too low</source>
        <translation>Módulo de temperatura y humedad 2: temperatura demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too high</source>
        <translation>Módulo de temperatura y humedad 2: humedad demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is normal</source>
        <translation>Módulo de temperatura y humedad 2: humedad normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 2 humidity is too low</source>
        <translation>Módulo de temperatura y humedad 2: humedad demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication lost</source>
        <translation>Módulo de temperatura y humedad 3: comunicación perdida</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 communication normal</source>
        <translation>Módulo de temperatura y humedad 3: comunicación normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too high</source>
        <translation>Módulo de temperatura y humedad 3: temperatura demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is normal</source>
        <translation>Módulo de temperatura y humedad 3: temperatura normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 temperature is too low</source>
        <translation>Módulo de temperatura y humedad 3: temperatura demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too high</source>
        <translation>Módulo de temperatura y humedad 3: humedad demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is normal</source>
        <translation>Módulo de temperatura y humedad 3: humedad normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 3 humidity is too low</source>
        <translation>Módulo de temperatura y humedad 3: humedad demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication lost</source>
        <translation>Módulo de temperatura y humedad 4: comunicación perdida</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 communication normal</source>
        <translation>Módulo de temperatura y humedad 4: comunicación normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too high</source>
        <translation>Módulo de temperatura y humedad 4: temperatura demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is normal</source>
        <translation>Módulo de temperatura y humedad 4: temperatura normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 temperature is too low</source>
        <translation>Módulo de temperatura y humedad 4: temperatura demasiado baja</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too high</source>
        <translation>Módulo de temperatura y humedad 4: humedad demasiado alta</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is normal</source>
        <translation>Módulo de temperatura y humedad 4: humedad normal</translation>
    </message>
    <message>
        <source>Temperature and humidity module 4 humidity is too low</source>
        <translation>Módulo de temperatura y humedad 4: humedad demasiado baja</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Data/Time</source>
        <translation>Fecha/Hora</translation>
    </message>
    <message>
        <source>Event description</source>
        <translation>Evento</translation>
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
        <translation>Gráficos en tiempo real</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Table Display</source>
        <translation>Valores del SAI monofásico</translation>
    </message>
    <message>
        <source>Battery Capacity</source>
        <translation>Capacidad de batería</translation>
    </message>
    <message>
        <source>Output Load</source>
        <translation>Carga de salida</translation>
    </message>
    <message>
        <source>Battery Temperature</source>
        <translation>Temperatura de batería</translation>
    </message>
    <message>
        <source>Battery Voltage(V)</source>
        <translation>Tensión de batería(V)</translation>
    </message>
    <message>
        <source>Battery Current(A)</source>
        <translation>Corriente de batería(A)</translation>
    </message>
    <message>
        <source>Bypass Voltage(V)</source>
        <translation>Tensión de bypass(V)</translation>
    </message>
    <message>
        <source>Single-phase UPS Data Graphic Display</source>
        <translation>Gráficos del SAI monofásico</translation>
    </message>
    <message>
        <source>Input Voltage(V)</source>
        <translation>Tensión de entrada(V)</translation>
    </message>
    <message>
        <source>(0)</source>
        <translation>(0)</translation>
    </message>
    <message>
        <source>Output Voltage(V)</source>
        <translation>Tensión de salida(V)</translation>
    </message>
    <message>
        <source>Remaining battery time(Min)</source>
        <translation>Autonomía restante(Min)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Carga de salida(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Temperatura de batería(C)</translation>
    </message>
    <message>
        <source>Input frequency(Hz)</source>
        <translation>Frecuencia de entrada(Hz)</translation>
    </message>
    <message>
        <source>Output frequency(Hz)</source>
        <translation>Frecuencia de salida(Hz)</translation>
    </message>
    <message>
        <source>Bypass frequency(Hz)</source>
        <translation>Frecuencia de bypass(Hz)</translation>
    </message>
    <message>
        <source>Input voltage(V)</source>
        <translation>Tensión de entrada(V)</translation>
    </message>
    <message>
        <source>Output voltage(V)</source>
        <translation>Tensión de salida(V)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tensión de batería(V)</translation>
    </message>
    <message>
        <source>Bypass voltage(V)</source>
        <translation>Tensión de bypass(V)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Actual:</translation>
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
        <translation>Valores del SAI trifásico</translation>
    </message>
    <message>
        <source>Remaining battery capacity(%)</source>
        <translation>Capacidad restante(%)</translation>
    </message>
    <message>
        <source>Output load(%)</source>
        <translation>Carga de salida(%)</translation>
    </message>
    <message>
        <source>Battery temperature(C)</source>
        <translation>Temperatura de batería(C)</translation>
    </message>
    <message>
        <source>Battery voltage(V)</source>
        <translation>Tensión de batería(V)</translation>
    </message>
    <message>
        <source>Battery current(A)</source>
        <translation>Corriente de batería(A)</translation>
    </message>
    <message>
        <source>Three-phase UPS Data Graphic Display</source>
        <translation>Gráficos del SAI trifásico</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Bypass</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Voltage R(V)</source>
        <translation>Tensión R(V)</translation>
    </message>
    <message>
        <source>Voltage S(V)</source>
        <translation>Tensión S(V)</translation>
    </message>
    <message>
        <source>Voltage T(V)</source>
        <translation>Tensión T(V)</translation>
    </message>
    <message>
        <source>Frequency R(Hz)</source>
        <translation>Frecuencia R(Hz)</translation>
    </message>
    <message>
        <source>Frequency S(Hz)</source>
        <translation>Frecuencia S(Hz)</translation>
    </message>
    <message>
        <source>Frequency T(Hz)</source>
        <translation>Frecuencia T(Hz)</translation>
    </message>
    <message>
        <source>Frequency(Hz)</source>
        <translation>Frecuencia(Hz)</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Actual:</translation>
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
        <translation>Normal</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Depleted</source>
        <translation>Agotada</translation>
    </message>
    <message>
        <source>Selftest</source>
        <translation>Autotest</translation>
    </message>
    <message>
        <source>Boost</source>
        <translation>Ecualización</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Flotación</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Other Supply</source>
        <translation>Otra fuente</translation>
    </message>
    <message>
        <source>None Supply</source>
        <translation>Sin fuente</translation>
    </message>
    <message>
        <source>Utility Supply</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Bypass Supply</source>
        <translation>Bypass</translation>
    </message>
    <message>
        <source>Battery Supply</source>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Booster Supply</source>
        <translation>Red elevada</translation>
    </message>
    <message>
        <source>Reducer Supply</source>
        <translation>Red reducida</translation>
    </message>
    <message>
        <source>UPS model</source>
        <translation>Modelo del SAI</translation>
    </message>
    <message>
        <source>Manufacturer name</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>System name</source>
        <translation>Nombre del sistema</translation>
    </message>
    <message>
        <source>UPS ident attached devices</source>
        <translation>Equipos conectados</translation>
    </message>
    <message>
        <source>UPS software version</source>
        <translation>Versión software SAI</translation>
    </message>
    <message>
        <source>Agent software version</source>
        <translation>Versión software agente</translation>
    </message>
    <message>
        <source>Agent location</source>
        <translation>Lugar del agente</translation>
    </message>
    <message>
        <source>battery voltage:</source>
        <translation>tensión de batería:</translation>
    </message>
    <message>
        <source>battery current:</source>
        <translation>corriente de batería:</translation>
    </message>
    <message>
        <source>battery temperature:</source>
        <translation>temperatura de batería:</translation>
    </message>
    <message>
        <source>remain discharge time:</source>
        <translation>autonomía restante:</translation>
    </message>
    <message>
        <source>Time on battery:</source>
        <translation>Tiempo en batería:</translation>
    </message>
    <message>
        <source>battery capacity:</source>
        <translation>capacidad de batería:</translation>
    </message>
    <message>
        <source>battery state:</source>
        <translation>estado de batería:</translation>
    </message>
    <message>
        <source>input voltage:</source>
        <translation>tensión de entrada:</translation>
    </message>
    <message>
        <source>input current:</source>
        <translation>corriente de entrada:</translation>
    </message>
    <message>
        <source>input frequency:</source>
        <translation>frecuencia de entrada:</translation>
    </message>
    <message>
        <source>input PF:</source>
        <translation>FP de entrada:</translation>
    </message>
    <message>
        <source>Number of mains failure</source>
        <translation>Número de fallos de red</translation>
    </message>
    <message>
        <source>output voltage:</source>
        <translation>tensión de salida:</translation>
    </message>
    <message>
        <source>output current:</source>
        <translation>corriente de salida:</translation>
    </message>
    <message>
        <source>output frequency:</source>
        <translation>frecuencia de salida:</translation>
    </message>
    <message>
        <source>output power:</source>
        <translation>potencia de salida:</translation>
    </message>
    <message>
        <source>output load percentage:</source>
        <translation>porcentaje de carga:</translation>
    </message>
    <message>
        <source>Output Mode:</source>
        <translation>Modo de salida:</translation>
    </message>
    <message>
        <source>bypass voltage:</source>
        <translation>tensión de bypass:</translation>
    </message>
    <message>
        <source>bypass current:</source>
        <translation>corriente de bypass:</translation>
    </message>
    <message>
        <source>bypass PF:</source>
        <translation>FP de bypass:</translation>
    </message>
    <message>
        <source>bypass frequency:</source>
        <translation>frecuencia de bypass:</translation>
    </message>
    <message>
        <source>Rated input voltage</source>
        <translation>Tensión nom. entrada</translation>
    </message>
    <message>
        <source>Rated input frequency</source>
        <translation>Frecuencia nom. entrada</translation>
    </message>
    <message>
        <source>Rated output voltage</source>
        <translation>Tensión nom. salida</translation>
    </message>
    <message>
        <source>Rated output frequency</source>
        <translation>Frecuencia nom. salida</translation>
    </message>
    <message>
        <source>Rated active power</source>
        <translation>Potencia activa nom.</translation>
    </message>
    <message>
        <source>Rated apparent power</source>
        <translation>Potencia aparente nom.</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>EQUIPO</translation>
    </message>
    <message>
        <source>BATTERY</source>
        <translation>BATERÍA</translation>
    </message>
    <message>
        <source>INPUT</source>
        <translation>ENTRADA</translation>
    </message>
    <message>
        <source>OUTPUT</source>
        <translation>SALIDA</translation>
    </message>
    <message>
        <source>BYPASS</source>
        <translation>BYPASS</translation>
    </message>
    <message>
        <source>RATE</source>
        <translation>NOMINAL</translation>
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
        <translation>Test del equipo</translation>
    </message>
    <message>
        <source>UPS Self-test for 10 seconds</source>
        <translation>Autotest del SAI de 10 segundos</translation>
    </message>
    <message>
        <source>UPS Discharge test to low voltage</source>
        <translation>Descarga del SAI hasta tensión baja</translation>
    </message>
    <message>
        <source>Cancel the UPS test</source>
        <translation>Cancelar el test del SAI</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Shut down setting</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>UPS shutdown</source>
        <translation>Apagar el SAI</translation>
    </message>
    <message>
        <source>UPS to standby</source>
        <translation>SAI en espera durante</translation>
    </message>
    <message>
        <source>minute</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>UPS will wake up from standby state</source>
        <translation>Sacar el SAI del estado de espera</translation>
    </message>
    <message>
        <source>Restart the UPS</source>
        <translation>Reiniciar el SAI</translation>
    </message>
</context>
<context>
    <name>TrendChart</name>
    <message>
        <source>Curve %1</source>
        <translation>Curva %1</translation>
    </message>
</context>
<context>
    <name>TrendLegend</name>
    <message>
        <source>Left scale:</source>
        <translation>Escala izquierda:</translation>
    </message>
    <message>
        <source>Right scale:</source>
        <translation>Escala derecha:</translation>
    </message>
</context>
</TS>
