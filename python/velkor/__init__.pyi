# Types are written by hand; scripts/python-stubs takes the docstrings from the module.
import os
from collections.abc import Callable, Iterator, Mapping, Sequence
from typing import Any, Literal
_Path = str | os.PathLike[str]
_Progress = Callable[[str, int, int], object]
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
    def is_complete(self) -> bool:
        """False when the progress callback has ended the check."""
        ...
    'What a check found.'

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
    def is_complete(self) -> bool:
        """False when the progress callback has ended the check."""
        ...
    'Property sets and quantity sets against their definitions.'

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
    def is_complete(self) -> bool:
        """False when the progress callback has ended it."""
        ...
    'The products of a model, classified.'

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

    def diff(self, other: Dictionary) -> DictionaryDifference:
        """What is other in another dictionary, from this one to that."""
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

class IdentifierCheck:
    """What a check of identifiers found."""

    @property
    def count(self) -> int:
        """Instances that have a GlobalId and were looked at."""
        ...

    @property
    def findings(self) -> list[Finding]:
        """In file order, no more than the limit."""
        ...

    @property
    def total(self) -> int:
        """Their full count."""
        ...

    @property
    def is_complete(self) -> bool:
        """False when the progress callback has ended the check."""
        ...

class ConversionChange:
    """One thing that a step did."""

    @property
    def instance(self) -> int | None:
        """Id in the model that was converted; None for the file as a whole."""
        ...

    @property
    def line(self) -> int | None:
        """Where that instance stands, counted from 1, or None."""
        ...

    @property
    def entity(self) -> str:
        ...

    @property
    def detail(self) -> str:
        """What became of what: 'IFCDOORSTYLE becomes IFCDOORTYPE'."""
        ...

class ConversionRule:
    """A rule of conversion that was followed."""

    @property
    def name(self) -> str:
        """Short stable word: 'date-to-text'."""
        ...

    @property
    def effect(self) -> Literal['converted', 'rebuilt', 'lost', 'kept']:
        """'converted', 'rebuilt', 'lost' or 'kept'."""
        ...

    @property
    def what(self) -> str:
        """What is done."""
        ...

    @property
    def reason(self) -> str:
        """Why it is right or why there is nothing better."""
        ...

    @property
    def count(self) -> int:
        """How often it was followed."""
        ...

    @property
    def changes(self) -> list[ConversionChange]:
        """The first of them in file order, no more than the limit."""
        ...

class ConversionStep:
    """What one step of a conversion did to the instances."""

    @property
    def name(self) -> str:
        """'release', 'units', 'identifiers' or 'properties'."""
        ...

    @property
    def kept(self) -> int:
        """Say in the same form what they said."""
        ...

    @property
    def converted(self) -> int:
        """Say the same in another form."""
        ...

    @property
    def rebuilt(self) -> int:
        """Others stand in their places."""
        ...

    @property
    def lost(self) -> int:
        ...

    @property
    def added(self) -> int:
        """Had no predecessor."""
        ...

    @property
    def rules(self) -> list[ConversionRule]:
        """Those that were followed."""
        ...

    @property
    def is_lossless(self) -> bool:
        """Whether no rule took anything away."""
        ...

class IdentifierChange:
    """An identifier that a conversion changed."""

    @property
    def instance(self) -> int:
        """Id of the instance."""
        ...

    @property
    def before(self) -> str:
        ...

    @property
    def after(self) -> str:
        ...

class Conversion:
    """What a conversion did."""

    @property
    def steps(self) -> list[ConversionStep]:
        """In the order in which they were taken."""
        ...

    @property
    def identifiers(self) -> list[IdentifierChange]:
        """Every identifier that was changed, in file order."""
        ...

    @property
    def is_lossless(self) -> bool:
        """Whether no step took anything away."""
        ...

class EntityDifference:
    """An entity that is another in the second dictionary."""

    @property
    def name(self) -> str:
        ...

    @property
    def properties(self) -> dict[str, tuple[str, str]]:
        """'supertype', 'abstract', 'uniqueness rules': before and after."""
        ...

    @property
    def added_attributes(self) -> dict[str, str]:
        """Name and type, those inherited left out."""
        ...

    @property
    def removed_attributes(self) -> dict[str, str]:
        ...

    @property
    def changed_attributes(self) -> dict[str, tuple[str, str]]:
        """Name, and types before and after."""
        ...

    @property
    def is_reordered(self) -> bool:
        """Whether the attributes in both stand in another order."""
        ...

class TypeDifference:
    """A type that is another in the second dictionary."""

    @property
    def name(self) -> str:
        ...

    @property
    def kind(self) -> Literal['enumeration', 'select', 'type']:
        """'enumeration', 'select' or 'type', as the second has it."""
        ...

    @property
    def added(self) -> list[str]:
        """Enumerators or items."""
        ...

    @property
    def removed(self) -> list[str]:
        ...

    @property
    def definition(self) -> dict[str, tuple[str, str]]:
        """Of others: before and after."""
        ...

    @property
    def is_reordered(self) -> bool:
        """Whether the enumerators in both stand in another order."""
        ...

class DictionaryDifference:
    """What changed from one dictionary to another, in alphabetical order."""

    @property
    def added_entities(self) -> list[str]:
        ...

    @property
    def removed_entities(self) -> list[str]:
        ...

    @property
    def changed_entities(self) -> list[EntityDifference]:
        ...

    @property
    def added_types(self) -> list[str]:
        ...

    @property
    def removed_types(self) -> list[str]:
        ...

    @property
    def changed_types(self) -> list[TypeDifference]:
        ...

    @property
    def added_rules(self) -> list[str]:
        """'IfcWall.CorrectPredefinedType'."""
        ...

    @property
    def removed_rules(self) -> list[str]:
        ...

    @property
    def changed_rules(self) -> dict[str, tuple[str, str]]:
        """Name, and EXPRESS texts before and after."""
        ...

    @property
    def renamed_rules(self) -> dict[str, str]:
        """Name before, and after."""
        ...

class Buffer:
    """Part of a column, for what takes buffers: numpy.asarray(…), memoryview(…). It cannot be changed."""

    def __len__(self) -> int:
        ...

class Column:
    """A value for each of many instances, for what takes buffers: numpy.asarray(column), memoryview(column). The buffer holds the values by kind; of lists those of all rows one behind the other. It cannot be changed."""

    @property
    def kind(self) -> Literal['real', 'integer', 'reference', 'logical', 'text']:
        """'real': double, NaN when unset. 'integer' and 'reference' (ids): int64, 0 when unset. 'logical': int8, 0, 1, 2 for UNKNOWN, -1 when unset. 'text': int32, places in categories, -1 when unset."""
        ...

    @property
    def dtype(self) -> Literal['float64', 'int64', 'int32', 'int8']:
        """The values as numpy names them: 'float64', 'int64', 'int32', 'int8'."""
        ...

    @property
    def is_list(self) -> bool:
        """Whether each row is a list of values."""
        ...

    @property
    def valid(self) -> Buffer:
        """A bool for each row: whether it is set."""
        ...

    @property
    def offsets(self) -> Buffer | None:
        """Of lists: int64, where the values of each row begin, and one more for the end. None for others."""
        ...

    @property
    def categories(self) -> list[str] | None:
        """Of texts: the different ones, in the order of first appearance. None for others."""
        ...

    @property
    def category_bytes(self) -> Buffer:
        """The categories in UTF-8, one behind the other."""
        ...

    @property
    def category_offsets(self) -> Buffer:
        """int64, where each of the categories begins in the bytes, and one more for the end."""
        ...

    @property
    def damaged(self) -> int:
        """How many values are not of their type or refer to nothing; they count as unset."""
        ...

    def __len__(self) -> int:
        ...

    def to_list(self) -> list[Any]:
        """The rows as Python values, None for those that are unset."""
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

    def check(self, scope: _Scope='everything', limit: int=100000, jobs: int=0, only: Sequence[str]=[], ignore: Sequence[str]=[], progress: _Progress | None=None) -> CheckResult:
        """Everything wrong with the model: scope 'structure' looks at the exchange structure, 'dictionary' at the instances as well, 'everything' at the rules of the release too.
        limit  -- findings that are listed at most; all are counted
        jobs   -- threads, 0 for as many as there are cores
        only, ignore  -- codes of findings that count, or do not
        progress  -- called with what is done, how much of it and of how much; False or an exception ends the work
        Other Python threads run meanwhile. Raises ValueError for an unknown scope or code."""
        ...

    def validate(self, limit: int=100000, configuration: str='', progress: _Progress | None=None) -> Validation:
        """Judges property sets and quantity sets by the definitions of the release.
        configuration  -- path of a configuration file; the shipped definitions count without
        progress  -- as for check
        Other Python threads run meanwhile. Raises Error 'configuration-invalid'."""
        ...

    def classify(self, configuration: str='', progress: _Progress | None=None) -> ClassificationResult:
        """Gives every product its neutral identifier and PLM type.
        configuration  -- path of a configuration file; the shipped mapping counts without
        progress  -- as for check
        Other Python threads run meanwhile. Raises Error 'no-classification', 'configuration-invalid'."""
        ...

    def check_identifiers(self, limit: int=100000, progress: _Progress | None=None) -> IdentifierCheck:
        """Whether every GlobalId is well-formed and used once.
        limit  -- findings that are listed at most; all are counted
        progress  -- as for check
        Other Python threads run meanwhile."""
        ...

    def convert(self, path: _Path, *, release: str='', units: Mapping[str, str]={}, repair_identifiers: bool=False, plm_identifiers: str='', custom_mapping: str='', plm_attributes: bool=False, time_stamp: str='', limit: int=100, configuration: str='', progress: _Progress | None=None) -> Conversion:
        """Writes the model to a file, which appears as a whole or not at all; a copy when nothing else is asked for.
        release  -- of this release, as Dictionary knows it
        units    -- unit types and the unit to use for each: {'LENGTHUNIT': 'MILLIMETRE'}
        repair_identifiers  -- new ones for those that are malformed, missing or used before
        plm_identifiers     -- the property that holds objects' PLM identifiers, from which theirs are made
        custom_mapping      -- 'import' or 'export': sets and properties renamed as the custom mapping says
        plm_attributes      -- PLM attributes put where the PLM attribute mapping wants them
        time_stamp  -- ISO 8601, of the header; that of the source when empty
        limit  -- changes of each rule that are listed at most; all are counted
        configuration  -- path of a configuration file; the shipped mappings count without
        progress  -- as for check; when it ends the work nothing is written
        Other Python threads run meanwhile. Raises ValueError for units that are none, Error 'schema-unknown', 'not-convertible', 'mapping-unreadable', 'configuration-invalid', 'ended', and what writing a file fails with."""
        ...

    def to_columns(self, entity: str, attributes: Sequence[str], progress: _Progress | None=None) -> dict[str, Column]:
        """Whole columns without a Python object for each value, by the names that were asked for: a row for each instance of the entity and its subtypes in file order.
        attributes  -- names of attributes, which are unset where an instance has none of the name; 'Set.Property' for single values, quantities and enumerated properties with one value, of the objects themselves or of their types; '#id' and '#entity'
        progress  -- as for check
        Selected values lose the names of their types; those of different kinds become texts. Other Python threads run meanwhile. Raises Error 'unknown-entity', 'unknown-attribute', 'unsupported' for lists of lists, 'ended'."""
        ...

    def units(self) -> Units:
        """The units of the model with their factors."""
        ...

def open(path: _Path) -> Model:
    """Opens an IFC file (ISO 10303-21). Other Python threads run meanwhile.
    Raises Error: 'file-missing', 'file-denied', 'no-exchange-structure', 'schema-unknown' …"""
    ...

def check(path: _Path, scope: _Scope='everything', limit: int=100000, jobs: int=0, only: Sequence[str]=[], ignore: Sequence[str]=[], progress: _Progress | None=None) -> CheckResult:
    """Judges a file as Model.check does, also one whose release is unknown: its structure, then.
    Raises Error when it cannot be read, ValueError for an unknown scope or code."""
    ...

def releases() -> list[str]:
    """The names of all dictionaries there are."""
    ...

def new_identifier() -> str:
    """A new GlobalId of 22 characters."""
    ...

def identifier_from_plm(plm: str) -> str:
    """The GlobalId that is a function of a PLM identifier, the same for ever. Raises ValueError for an empty one."""
    ...

def identifier_fault(identifier: str) -> tuple[str, str] | None:
    """Code and message of the first fault of a GlobalId; None when it is well-formed. Codes are 'guid-length', 'guid-character' and 'guid-first-character'."""
    ...

def expand_identifier(identifier: str) -> str:
    """A GlobalId as hexadecimal text of 36 characters in lower case. Raises ValueError for one that is not well-formed."""
    ...

def compress_identifier(text: str) -> str:
    """Hexadecimal text, in any letter case and with or without braces, as a GlobalId. Raises ValueError for text that is none."""
    ...
