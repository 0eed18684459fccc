<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context><name></name>
<message id="1632"><source></source><translation>Beliebig</translation></message>
</context></TS>
