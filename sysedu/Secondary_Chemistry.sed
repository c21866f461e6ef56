<NOMSYS>Secondary school chemistry</NOMSYS>

A two-year chemistry course of upper secondary school. Each subject below
names the text file in lang/ that places the problem generators under its
topics, in teaching order.

<ASIG>
  <NOM>Chemistry 1</NOM>
  <MODG>ENG_SED_CHEM1.lmo</MODG>
  <IMG>chem1.png</IMG>
  <MODB><QUI></MODB>
</ASIG>

<ASIG>
  <NOM>Chemistry 2</NOM>
  <MODG>ENG_SED_CHEM2.lmo</MODG>
  <IMG>chem2.png</IMG>
  <MODB><QUI></MODB>
</ASIG>
