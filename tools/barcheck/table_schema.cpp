#include "table_schema.h"

std::string_view TableSchema() {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- Made by barcheck: what its reader takes of XLIFF 2. -->
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:t="urn:oasis:names:tc:xliff:document:2.0"
           targetNamespace="urn:oasis:names:tc:xliff:document:2.0" elementFormDefault="qualified">
  <xs:element name="xliff" type="t:xliff">
    <xs:unique name="fileIds">
      <xs:selector xpath="t:file"/>
      <xs:field xpath="@id"/>
    </xs:unique>
  </xs:element>
  <xs:complexType name="xliff">
    <xs:sequence>
      <xs:element name="file" type="t:file" maxOccurs="unbounded">
        <xs:unique name="unitIds">
          <xs:selector xpath=".//t:unit"/>
          <xs:field xpath="@id"/>
        </xs:unique>
        <xs:unique name="unitNames">
          <xs:selector xpath=".//t:unit"/>
          <xs:field xpath="@name"/>
        </xs:unique>
      </xs:element>
    </xs:sequence>
    <xs:attribute name="version" type="t:version" use="required"/>
    <xs:attribute name="srcLang" type="xs:language" use="required"/>
    <xs:attribute name="trgLang" type="xs:language"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:complexType>
  <xs:complexType name="file">
    <xs:sequence>
      <xs:element name="skeleton" type="t:anything" minOccurs="0"/>
      <xs:any namespace="##other" processContents="skip" minOccurs="0" maxOccurs="unbounded"/>
      <xs:element name="notes" type="t:notes" minOccurs="0"/>
      <xs:choice minOccurs="0" maxOccurs="unbounded">
        <xs:element name="unit" type="t:unit"/>
        <xs:element name="group" type="t:group"/>
      </xs:choice>
    </xs:sequence>
    <xs:attribute name="id" type="xs:NMTOKEN" use="required"/>
    <xs:attribute name="original" type="xs:string"/>
    <xs:attributeGroup ref="t:settings"/>
  </xs:complexType>
  <xs:complexType name="group">
    <xs:sequence>
      <xs:any namespace="##other" processContents="skip" minOccurs="0" maxOccurs="unbounded"/>
      <xs:element name="notes" type="t:notes" minOccurs="0"/>
      <xs:choice minOccurs="0" maxOccurs="unbounded">
        <xs:element name="unit" type="t:unit"/>
        <xs:element name="group" type="t:group"/>
      </xs:choice>
    </xs:sequence>
    <xs:attribute name="id" type="xs:NMTOKEN" use="required"/>
    <xs:attribute name="name" type="xs:string"/>
    <xs:attribute name="type" type="xs:string"/>
    <xs:attributeGroup ref="t:settings"/>
  </xs:complexType>
  <xs:complexType name="unit">
    <xs:sequence>
      <xs:any namespace="##other" processContents="skip" minOccurs="0" maxOccurs="unbounded"/>
      <xs:element name="notes" type="t:notes" minOccurs="0"/>
      <xs:element name="originalData" type="t:anything" minOccurs="0"/>
      <xs:choice maxOccurs="unbounded">
        <xs:element name="segment" type="t:segment"/>
        <xs:element name="ignorable" type="t:ignorable"/>
      </xs:choice>
    </xs:sequence>
    <xs:attribute name="id" type="xs:NMTOKEN" use="required"/>
    <xs:attribute name="name" type="t:key"/>
    <xs:attribute name="type" type="xs:string"/>
    <xs:attributeGroup ref="t:settings"/>
  </xs:complexType>
  <xs:attributeGroup name="settings">
    <xs:attribute name="canResegment" type="t:yesNo"/>
    <xs:attribute name="translate" type="t:yesNo"/>
    <xs:attribute name="srcDir" type="t:direction"/>
    <xs:attribute name="trgDir" type="t:direction"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:attributeGroup>
  <xs:complexType name="notes">
    <xs:sequence>
      <xs:element name="note" maxOccurs="unbounded">
        <xs:complexType mixed="true">
          <xs:attribute name="id" type="xs:NMTOKEN"/>
          <xs:attribute name="appliesTo">
            <xs:simpleType>
              <xs:restriction base="xs:string">
                <xs:enumeration value="source"/>
                <xs:enumeration value="target"/>
              </xs:restriction>
            </xs:simpleType>
          </xs:attribute>
          <xs:attribute name="category" type="xs:string"/>
          <xs:attribute name="priority" type="xs:positiveInteger"/>
          <xs:anyAttribute namespace="##other" processContents="skip"/>
        </xs:complexType>
      </xs:element>
    </xs:sequence>
  </xs:complexType>
  <xs:complexType name="segment">
    <xs:sequence>
      <xs:element name="source" type="t:content"/>
      <xs:element name="target" type="t:target" minOccurs="0"/>
    </xs:sequence>
    <xs:attribute name="id" type="xs:NMTOKEN"/>
    <xs:attribute name="canResegment" type="t:yesNo"/>
    <xs:attribute name="state">
      <xs:simpleType>
        <xs:restriction base="xs:string">
          <xs:enumeration value="initial"/>
          <xs:enumeration value="translated"/>
          <xs:enumeration value="reviewed"/>
          <xs:enumeration value="final"/>
        </xs:restriction>
      </xs:simpleType>
    </xs:attribute>
    <xs:attribute name="subState" type="xs:string"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:complexType>
  <xs:complexType name="ignorable">
    <xs:sequence>
      <xs:element name="source" type="t:content"/>
      <xs:element name="target" type="t:target" minOccurs="0"/>
    </xs:sequence>
    <xs:attribute name="id" type="xs:NMTOKEN"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:complexType>
  <xs:group name="inline">
    <xs:choice>
      <xs:element name="cp">
        <xs:complexType>
          <xs:attribute name="hex" type="xs:hexBinary" use="required"/>
        </xs:complexType>
      </xs:element>
      <xs:element name="pc" type="t:span"/>
      <xs:element name="mrk" type="t:span"/>
      <xs:element name="ph" type="t:anything"/>
      <xs:element name="sc" type="t:anything"/>
      <xs:element name="ec" type="t:anything"/>
      <xs:element name="sm" type="t:anything"/>
      <xs:element name="em" type="t:anything"/>
    </xs:choice>
  </xs:group>
  <xs:complexType name="content" mixed="true">
    <xs:group ref="t:inline" minOccurs="0" maxOccurs="unbounded"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:complexType>
  <xs:complexType name="target" mixed="true">
    <xs:group ref="t:inline" minOccurs="0" maxOccurs="unbounded"/>
    <xs:attribute name="order" type="xs:positiveInteger"/>
    <xs:anyAttribute namespace="##other" processContents="skip"/>
  </xs:complexType>
  <xs:complexType name="span" mixed="true">
    <xs:group ref="t:inline" minOccurs="0" maxOccurs="unbounded"/>
    <xs:anyAttribute processContents="skip"/>
  </xs:complexType>
  <xs:complexType name="anything" mixed="true">
    <xs:sequence>
      <xs:any processContents="skip" minOccurs="0" maxOccurs="unbounded"/>
    </xs:sequence>
    <xs:anyAttribute processContents="skip"/>
  </xs:complexType>
  <xs:simpleType name="version">
    <xs:restriction base="xs:string">
      <xs:pattern value="2\.[0-9]+"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="key">
    <xs:restriction base="xs:string">
      <xs:minLength value="1"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="yesNo">
    <xs:restriction base="xs:string">
      <xs:enumeration value="yes"/>
      <xs:enumeration value="no"/>
    </xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="direction">
    <xs:restriction base="xs:string">
      <xs:enumeration value="ltr"/>
      <xs:enumeration value="rtl"/>
      <xs:enumeration value="auto"/>
    </xs:restriction>
  </xs:simpleType>
</xs:schema>
)";
}
