# Types are written by hand; scripts/python-stubs takes the docstrings from the module.
import os
from collections.abc import Iterator, Sequence
from typing import Any, Literal
_Path = str | os.PathLike[str]
_Scope = Literal['structure', 'dictionary', 'everything']

class Error(Exception):
    """What cannot be done, in one line.

    code      -- short stable word, such as 'file-missing' or 'schema-unknown'
    path      -- the file it is about, None when it is about none
    line      -- of the file, counted from 1, or None
    instance  -- id of the instance it is about, or None"""
    code: str
    path: str | None
    line: int | None
    instance: int | None

class Header:
    """The header of a file; what the file leaves out is empty."""

    @property
    def description(self) -> list[str]:
        """The entries of FILE_DESCRIPTION."""
        ...

    @property
    def implementation_level(self) -> str:
        ...

    @property
    def name(self) -> str:
        ...

    @property
    def time_stamp(self) -> str:
        """As the file writes it: ISO 8601."""
        ...

    @property
    def author(self) -> list[str]:
        ...

    @property
    def organization(self) -> list[str]:
        ...

    @property
    def preprocessor_version(self) -> str:
        ...

    @property
    def originating_system(self) -> str:
        ...

    @property
    def authorization(self) -> str:
        ...

    @property
    def schemas(self) -> list[str]:
        """What FILE_SCHEMA names."""
        ...

class TypedValue:
    """A value with its defined type, where an attribute allows several types."""

    @property
    def type(self) -> str:
        """The defined type in upper case: 'IFCLABEL'."""
        ...

    @property
    def value(self) -> Any:
        """The value itself, in the model's own units."""
        ...

class Instance:
    """An instance of a model. Its attributes are read by name, letter case ignored: wall.Name.
    It keeps its model open. Two are equal when they are the same instance of the same open model."""

    @property
    def id(self) -> int:
        """Its number in the file, without '#'."""
        ...

    @property
    def entity(self) -> str:
        """The entity in upper case, 'IFCWALL'; '(…)' for a complex instance."""
        ...

    @property
    def attributes(self) -> dict[str, Any]:
        """All explicit attributes by name in upper case, in the order of the file.
        Raises Error as reading each of them does, and 'no-single-entity' for complex instances and unknown entities."""
        ...

    @property
    def model(self) -> Model:
        """The model that it is of."""
        ...

    def is_a(self, entity: str) -> bool:
        """Whether it is of an entity or of one of its subtypes. Letter case is ignored.
        Raises Error 'unknown-entity' for a name that the release does not have."""
        ...

    def __getattr__(self, name: str) -> Any:
        ...

    def __getitem__(self, name: str) -> Any:
        ...

class InstanceList:
    """Instances in file order, each made when it is asked for."""

    def __len__(self) -> int:
        ...

    def __getitem__(self, index: int) -> Instance:
        ...

    def __iter__(self) -> Iterator[Instance]:
        ...

class InstanceIterator:
    """All instances of a model in file order."""

    def __iter__(self) -> InstanceIterator:
        ...

    def __next__(self) -> Instance:
        ...

class Finding:
    """One thing found wrong in a file."""

    @property
    def code(self) -> str:
        """Short stable word."""
        ...

    @property
    def severity(self) -> Literal['error', 'warning']:
        """'error' or 'warning'."""
        ...

    @property
    def line(self) -> int:
        """Counted from 1."""
        ...

    @property
    def instance(self) -> int | None:
        """Id of the instance; None outside any."""
        ...

    @property
    def message(self) -> str:
        """What was expected and what was found."""
        ...

    @property
    def rule(self) -> str | None:
        """The rule that is broken, 'IfcWall.CorrectPredefinedType'; None when it is none."""
        ...

class SetFinding:
    """One thing wrong with one property set or quantity set."""

    @property
    def code(self) -> str:
        """Short stable word."""
        ...

    @property
    def severity(self) -> Literal['error', 'warning']:
        """'error' or 'warning'."""
        ...

    @property
    def line(self) -> int:
        """Counted from 1."""
        ...

    @property
    def instance(self) -> int | None:
        """Id of the instance; None outside any."""
        ...

    @property
    def message(self) -> str:
        """What was expected and what was found."""
        ...

    @property
    def set(self) -> str:
        """Its name."""
        ...

    @property
    def object(self) -> int | None:
        """Id of the first object that has the set; None when none has."""
        ...

    @property
    def nearest(self) -> str | None:
        """The name that was probably meant, or None."""
        ...

    @property
    def property(self) -> str | None:
        """The property concerned; None when the set is."""
        ...

class CheckResult:
    """What a check found."""

    @property
    def release(self) -> str | None:
        """The dictionary that was judged by; None when none was."""
        ...

    @property
    def findings(self) -> list[Finding]:
        """In file order, no more than the limit."""
        ...

    @property
    def total(self) -> int:
        """Their full count."""
        ...

class Validation:
    """Property sets and quantity sets against their definitions."""

    @property
    def defined_by(self) -> str:
        """The release of the definitions."""
        ...

    @property
    def has_definitions(self) -> bool:
        ...

    @property
    def sets(self) -> int:
        """How many were looked at."""
        ...

    @property
    def properties(self) -> int:
        ...

    @property
    def checked_sets(self) -> int:
        """How many have a definition."""
        ...

    @property
    def checked_properties(self) -> int:
        ...

    @property
    def findings(self) -> list[SetFinding]:
        """In file order, no more than the limit."""
        ...

    @property
    def total(self) -> int:
        """Their full count."""
        ...

class ClassifiedProduct:
    """A product with what the services make of it."""

    @property
    def instance(self) -> Instance:
        ...

    @property
    def neutral_id(self) -> str | None:
        """The neutral identifier; None without one."""
        ...

    @property
    def plm_type(self) -> str | None:
        """The PLM type; None without one."""
        ...

    @property
    def reason(self) -> str | None:
        """Why there is no neutral identifier; None when there is one."""
        ...

class ClassificationResult:
    """The products of a model, classified."""

    @property
    def document(self) -> str:
        """The mapping document that decided."""
        ...

    @property
    def products(self) -> list[ClassifiedProduct]:
        """In file order."""
        ...

    @property
    def unclassified(self) -> int:
        """How many have no neutral identifier."""
        ...

class Unit:
    """A unit of the model's assignment."""

    @property
    def id(self) -> int:
        ...

    @property
    def entity(self) -> str:
        ...

    @property
    def type(self) -> str | None:
        """'LENGTHUNIT'; None for a unit without a type, such as money."""
        ...

    @property
    def name(self) -> str:
        """'MILLIMETRE', 'INCH'."""
        ...

    @property
    def factor(self) -> float | None:
        """SI base units in one of the unit."""
        ...

class Units:
    """The units of a model."""

    @property
    def units(self) -> list[Unit]:
        """In the order of the assignment."""
        ...

    @property
    def length_factor(self) -> float | None:
        """Millimetres in a length unit; None when the units give no factors."""
        ...

    @property
    def angle_factor(self) -> float | None:
        """Radians in a plane angle unit; None when the units give no factors."""
        ...

    @property
    def measures(self) -> dict[str, float]:
        """Factor to SI base units by measure type: 'IFCAREAMEASURE'."""
        ...

class Attribute:
    """An attribute of an entity, as its release declares it."""

    @property
    def name(self) -> str:
        """In upper case."""
        ...

    @property
    def owner(self) -> str:
        """The entity that declares it."""
        ...

    @property
    def type(self) -> str:
        """In EXPRESS notation, without OPTIONAL."""
        ...

    @property
    def is_optional(self) -> bool:
        ...

    @property
    def is_derived(self) -> bool:
        ...

    @property
    def position(self) -> int | None:
        """Place among the values of an instance, counted from 1; None when it has none there."""
        ...

class Entity:
    """An entity of a release, inherited attributes included."""

    @property
    def name(self) -> str:
        """In upper case."""
        ...

    @property
    def is_abstract(self) -> bool:
        ...

    @property
    def supertypes(self) -> list[str]:
        """From the nearest to the root."""
        ...

    @property
    def subtypes(self) -> list[str]:
        """One level down."""
        ...

    @property
    def attributes(self) -> list[Attribute]:
        """In the order of an instance's values; behind them those that have no value there."""
        ...

class Dictionary:
    """The dictionary of a release: its entities and their attributes. Letter case is ignored in names."""

    def __init__(self, release: str) -> None:
        ...

    @property
    def name(self) -> str:
        ...

    @property
    def entities(self) -> list[str]:
        """The names of all entities, in upper case."""
        ...

    def entity(self, name: str) -> Entity:
        """An entity by name. Raises Error 'unknown-entity'."""
        ...

    def is_subtype(self, entity: str, ancestor: str) -> bool:
        """Whether an entity is another or one of its subtypes at any depth. Raises Error 'unknown-entity'."""
        ...

    def __contains__(self, name: str) -> bool:
        ...

class Property:
    """What a definition says of a property or quantity."""

    @property
    def name(self) -> str:
        ...

    @property
    def kind(self) -> str:
        """'single', 'enumerated', 'length' …"""
        ...

    @property
    def value_type(self) -> str | None:
        """The type of the values, 'IfcLabel'; None when any will do."""
        ...

    @property
    def unit_type(self) -> str | None:
        """'LENGTHUNIT'; None when the definition does not say."""
        ...

    @property
    def enumerators(self) -> list[str]:
        """Of enumerated properties, in the definition's order."""
        ...

    @property
    def members(self) -> list[Property]:
        """Of complex properties."""
        ...

class PropertySet:
    """The definition of a property set or quantity set."""

    @property
    def name(self) -> str:
        ...

    @property
    def is_quantity_set(self) -> bool:
        ...

    @property
    def template_type(self) -> str | None:
        """'type-driven-override', 'occurrence-driven' …; None when it does not say."""
        ...

    @property
    def classes(self) -> list[str]:
        """What it applies to: 'IfcWall', 'IfcActuator/ELECTRICACTUATOR'."""
        ...

    @property
    def properties(self) -> list[Property]:
        """In the definition's order."""
        ...

class PropertySets:
    """The property sets and quantity sets that a release defines."""

    def __init__(self, release: str, configuration: str='') -> None:
        ...

    @property
    def release(self) -> str:
        """That of the definitions: 'IFC4X3_ADD2' for IFC4X4."""
        ...

    @property
    def names(self) -> list[str]:
        """Sorted."""
        ...

    def __len__(self) -> int:
        ...

    def __contains__(self, name: str) -> bool:
        ...

    def show(self, name: str) -> PropertySet:
        """The definition of a set; letter case counts. Raises Error 'set-unknown', 'set-unreadable'."""
        ...

    def applicable(self, entity: str, predefined_type: str='') -> list[str]:
        """Names of the sets that apply to objects of an entity: with a predefined type those that apply to that too, without those too that apply to some type alone.
        Raises Error 'unknown-entity'."""
        ...

class Model:
    """An IFC model opened for reading. It is closed when nothing of it is used any more."""

    @property
    def path(self) -> str:
        """As it was opened."""
        ...

    @property
    def release(self) -> str:
        """The dictionary that is used: 'IFC4'."""
        ...

    @property
    def header(self) -> Header:
        ...

    @property
    def dictionary(self) -> Dictionary:
        """The dictionary of its release."""
        ...

    def __len__(self) -> int:
        ...

    def __iter__(self) -> Iterator[Instance]:
        ...

    def __contains__(self, id: object) -> bool:
        ...

    def __getitem__(self, id: int) -> Instance:
        ...

    def by_id(self, id: int) -> Instance:
        """The instance of an id; KeyError when the file has none."""
        ...

    def by_entity(self, entity: str, subtypes: bool=True) -> InstanceList:
        """The instances of an entity and, unless told otherwise, of its subtypes, in file order. Letter case is ignored.
        Raises Error 'unknown-entity' for a name that the release does not have."""
        ...

    def check(self, scope: _Scope='everything', limit: int=100000, jobs: int=0, only: Sequence[str]=[], ignore: Sequence[str]=[]) -> CheckResult:
        """Everything wrong with the model: scope 'structure' looks at the exchange structure, 'dictionary' at the instances as well, 'everything' at the rules of the release too.
        limit  -- findings that are listed at most; all are counted
        jobs   -- threads, 0 for as many as there are cores
        only, ignore  -- codes of findings that count, or do not
        Other Python threads run meanwhile. Raises ValueError for an unknown scope or code."""
        ...

    def validate(self, limit: int=100000, configuration: str='') -> Validation:
        """Judges property sets and quantity sets by the definitions of the release.
        configuration  -- path of a configuration file; the shipped definitions count without
        Other Python threads run meanwhile. Raises Error 'configuration-invalid'."""
        ...

    def classify(self, configuration: str='') -> ClassificationResult:
        """Gives every product its neutral identifier and PLM type.
        configuration  -- path of a configuration file; the shipped mapping counts without
        Other Python threads run meanwhile. Raises Error 'no-classification', 'configuration-invalid'."""
        ...

    def units(self) -> Units:
        """The units of the model with their factors."""
        ...

def open(path: _Path) -> Model:
    """Opens an IFC file (ISO 10303-21). Other Python threads run meanwhile.
    Raises Error: 'file-missing', 'file-denied', 'no-exchange-structure', 'schema-unknown' …"""
    ...

def check(path: _Path, scope: _Scope='everything', limit: int=100000, jobs: int=0, only: Sequence[str]=[], ignore: Sequence[str]=[]) -> CheckResult:
    """Judges a file as Model.check does, also one whose release is unknown: its structure, then.
    Raises Error when it cannot be read, ValueError for an unknown scope or code."""
    ...

def releases() -> list[str]:
    """The names of all dictionaries there are."""
    ...
